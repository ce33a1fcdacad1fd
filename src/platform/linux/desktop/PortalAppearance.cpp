// SPDX-License-Identifier: GPL-3.0-or-later
#include "PortalAppearance.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr auto portalService = "org.freedesktop.portal.Desktop"_L1;
constexpr auto portalPath = "/org/freedesktop/portal/desktop"_L1;
constexpr auto settingsInterface = "org.freedesktop.portal.Settings"_L1;

// color-scheme: 1 is dark, 2 is light, 0 is no preference, which GNOME uses for light.
constexpr auto colorScheme = "color-scheme"_L1;
// Of these two 1 is yes, 0 is no preference.
constexpr auto contrast = "contrast"_L1;
constexpr auto reducedMotion = "reduced-motion"_L1;
// GNOME's are true or false.
constexpr auto highContrast = "high-contrast"_L1;
constexpr auto animations = "enable-animations"_L1;

struct Setting {
    QLatin1StringView group;
    QLatin1StringView key;
};
constexpr auto commonGroup = "org.freedesktop.appearance"_L1;
constexpr auto accessibilityGroup = "org.gnome.desktop.a11y.interface"_L1;
constexpr auto interfaceGroup = "org.gnome.desktop.interface"_L1;
constexpr std::array settings{Setting{commonGroup, colorScheme}, Setting{commonGroup, contrast},
                              Setting{commonGroup, reducedMotion}, Setting{accessibilityGroup, highContrast},
                              Setting{interfaceGroup, animations}};

} // namespace

void PortalAppearance::start()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    // Match group and key, so that no other desktop setting wakes this process.
    for (const auto& [group, key] : settings)
        bus.connect(portalService, portalPath, settingsInterface, u"SettingChanged"_s, {group, key}, u"ssv"_s, this,
                    SLOT(handleSettingChanged(QDBusMessage)));

    auto read = QDBusMessage::createMethodCall(portalService, portalPath, settingsInterface, u"ReadAll"_s);
    read << QStringList{commonGroup, accessibilityGroup, interfaceGroup};
    auto* call = new QDBusPendingCallWatcher(bus.asyncCall(read), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, &PortalAppearance::handleReply);
}

void PortalAppearance::handleReply(QDBusPendingCallWatcher* call)
{
    call->deleteLater();
    const QDBusMessage reply = call->reply();
    if (reply.type() != QDBusMessage::ReplyMessage || reply.signature() != "a{sa{sv}}"_L1)
        return;
    const auto groups = qdbus_cast<QMap<QString, QVariantMap>>(reply.arguments().constFirst());
    for (const auto& [group, key] : settings)
        take(key, groups.value(group).value(key));
    report();
}

void PortalAppearance::handleSettingChanged(const QDBusMessage& signal)
{
    take(signal.arguments().at(1).toString(), signal.arguments().at(2).value<QDBusVariant>().variant());
    report();
}

void PortalAppearance::take(const QString& key, const QVariant& value)
{
    bool isNumber = false;
    const uint number = value.toUInt(&isNumber);
    if (isNumber)
        m_values[key] = number;
}

void PortalAppearance::report()
{
    if (m_values.contains(colorScheme))
        Q_EMIT colorSchemeReported(m_values[colorScheme] == 1 ? ColorScheme::Dark : ColorScheme::Light);
    if (m_values.contains(contrast) || m_values.contains(highContrast)) {
        const bool isHigh = m_values.value(contrast) == 1 || m_values.value(highContrast) == 1;
        Q_EMIT contrastReported(isHigh ? Contrast::High : Contrast::Normal);
    }
    if (m_values.contains(reducedMotion) || m_values.contains(animations))
        Q_EMIT reducedMotionReported(m_values.value(reducedMotion) == 1 || m_values.value(animations, 1) == 0);
}
