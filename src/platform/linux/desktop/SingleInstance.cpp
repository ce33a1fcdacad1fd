// SPDX-License-Identifier: GPL-3.0-or-later
#include "SingleInstance.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>

using namespace Qt::StringLiterals;

namespace {

constexpr auto ownService = "io.github.pellory.Pellory"_L1;
constexpr auto ownPath = "/io/github/pellory/Pellory"_L1;
constexpr auto interface = "org.freedesktop.Application"_L1;
constexpr auto checkAction = "run-check"_L1;
constexpr auto tokenKey = "activation-token"_L1;
constexpr auto startupIdKey = "desktop-startup-id"_L1;

} // namespace

SingleInstance::SingleInstance(std::chrono::milliseconds timeout)
    : m_timeout(static_cast<int>(timeout.count()))
{
    if (qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN"))
        m_platformData.insert(tokenKey, qEnvironmentVariable("XDG_ACTIVATION_TOKEN"));
    if (qEnvironmentVariableIsSet("DESKTOP_STARTUP_ID"))
        m_platformData.insert(startupIdKey, qEnvironmentVariable("DESKTOP_STARTUP_ID"));
}

SingleInstance::Claim SingleInstance::claim(Request request)
{
    return claim(request, QDBusConnection::sessionBus());
}

SingleInstance::Claim SingleInstance::claim(Request request, QDBusConnection bus)
{
    // Before the name, so that nobody finds the name without the object.
    constexpr auto exported = QDBusConnection::ExportScriptableSlots | QDBusConnection::ExportAdaptors;
    if (!bus.isConnected() || !bus.registerObject(ownPath, this, exported))
        return Claim::Owned;
    for (int attempt = 0; attempt < 3; ++attempt) {
        const auto name = bus.interface()->registerService(ownService, QDBusConnectionInterface::DontQueueService);
        const bool isAllowed = name.isValid();
        if (!isAllowed || name == QDBusConnectionInterface::ServiceRegistered)
            return Claim::Owned;
        const QString owner = bus.interface()->serviceOwner(ownService);
        if (request == Request::None ||
            bus.call(messageFor(request), QDBus::Block, m_timeout).type() == QDBusMessage::ReplyMessage)
            return Claim::HandedOver;
        // If it died instead of answering, it no longer owns the name: try again.
        if (!owner.isEmpty() && bus.interface()->serviceOwner(ownService) == owner)
            break;
    }
    return Claim::Refused;
}

QDBusMessage SingleInstance::messageFor(Request request) const
{
    const bool isCheck = request == Request::Check;
    auto message =
        QDBusMessage::createMethodCall(ownService, ownPath, interface, isCheck ? u"ActivateAction"_s : u"Activate"_s);
    if (isCheck)
        message << checkAction << QVariantList();
    message << m_platformData;
    message.setAutoStartService(false);
    return message;
}

void SingleInstance::Activate(const QVariantMap& data)
{
    Q_EMIT activated(data.value(tokenKey, data.value(startupIdKey)).toString());
}

void SingleInstance::ActivateAction(const QString& name, const QVariantList&, const QVariantMap& data)
{
    if (name == checkAction)
        Q_EMIT checkRequested();
    else
        Activate(data);
}
