// SPDX-License-Identifier: GPL-3.0-or-later
#include "PortalAppearance.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

using namespace Qt::StringLiterals;

namespace {

constexpr auto portalService = "org.freedesktop.portal.Desktop"_L1;
constexpr auto portalPath = "/org/freedesktop/portal/desktop"_L1;
constexpr auto settingsInterface = "org.freedesktop.portal.Settings"_L1;
constexpr auto appearanceGroup = "org.freedesktop.appearance"_L1;
constexpr auto colorSchemeKey = "color-scheme"_L1;

} // namespace

void PortalAppearance::start()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    // Match group and key, so that no other desktop setting wakes this process.
    bus.connect(portalService, portalPath, settingsInterface, u"SettingChanged"_s, {appearanceGroup, colorSchemeKey},
                u"ssv"_s, this, SLOT(handleSettingChanged(QDBusMessage)));

    auto read = QDBusMessage::createMethodCall(portalService, portalPath, settingsInterface, u"Read"_s);
    read << appearanceGroup << colorSchemeKey;
    auto* call = new QDBusPendingCallWatcher(bus.asyncCall(read), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, &PortalAppearance::handleReply);
}

void PortalAppearance::handleReply(QDBusPendingCallWatcher* call)
{
    call->deleteLater();
    const QDBusPendingReply<QDBusVariant> reply = *call;
    if (reply.isValid())
        report(QVariant::fromValue(reply.value()));
}

void PortalAppearance::handleSettingChanged(const QDBusMessage& signal)
{
    report(signal.arguments().at(2));
}

void PortalAppearance::report(const QVariant& value)
{
    // Read's reply has one more variant around it than the signal.
    QVariant scheme = value;
    while (scheme.metaType() == QMetaType::fromType<QDBusVariant>())
        scheme = scheme.value<QDBusVariant>().variant();
    bool isNumber = false;
    const bool isDark = scheme.toUInt(&isNumber) == 1;
    if (isNumber)
        Q_EMIT colorSchemeReported(isDark ? ColorScheme::Dark : ColorScheme::Light);
}
