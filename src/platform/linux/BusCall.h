// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "PlatformError.h"

#include <QDBusMessage>

#include <QCoroTask>

#include <chrono>

class QDBusConnection;

/// The answer of a bus service that refused, or that is not there.
class BusError : public PlatformError {
public:
    BusError(const QString& name, const QString& message)
        : PlatformError(message)
        , m_name(name)
    {
    }

    /// Such as "org.freedesktop.DBus.Error.ServiceUnknown".
    [[nodiscard]] const QString& name() const { return m_name; }

private:
    QString m_name;
};

inline constexpr std::chrono::milliseconds busPatience = std::chrono::seconds(25);

/// Calls a service and waits for its answer. Throws a BusError when there is none, and Abandoned when `caller` is
/// destroyed meanwhile.
[[nodiscard]] QCoro::Task<QDBusMessage> busCall(QObject* caller, QDBusConnection bus, QDBusMessage call,
                                                std::chrono::milliseconds patience = busPatience);
