// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "PlatformError.h"

#include <QDBusMessage>

#include <QCoroTask>

#include <chrono>

class QDBusConnection;

/// How long a service may take to answer a call.
inline constexpr std::chrono::milliseconds busTimeout = std::chrono::seconds(25);

/// An error reply, or the lack of a reply.
class BusError : public PlatformError {
public:
    BusError(const QString& name, const QString& message)
        : PlatformError(message)
        , m_name(name)
    {
    }

    /// Such as "org.freedesktop.DBus.Error.ServiceUnknown".
    [[nodiscard]] const QString& name() const { return m_name; }
    /// Whether nobody was there to be called.
    [[nodiscard]] bool isServiceMissing() const;

private:
    QString m_name;
};

/// Calls a service and waits for its reply. Throws a BusError if the reply is an error or does not come, and Abandoned
/// if `caller` is destroyed meanwhile.
[[nodiscard]] QCoro::Task<QDBusMessage> busCall(QObject* caller, QDBusConnection bus, QDBusMessage call,
                                                std::chrono::milliseconds timeout = busTimeout);
