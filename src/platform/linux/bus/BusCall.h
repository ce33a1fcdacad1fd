// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "BusPatience.h"
#include "PlatformError.h"

#include <QDBusMessage>

#include <QCoroTask>

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

/// Calls a service and waits for its answer. Throws a BusError when there is none, and Abandoned when `caller` is
/// destroyed meanwhile.
[[nodiscard]] QCoro::Task<QDBusMessage> busCall(QObject* caller, QDBusConnection bus, QDBusMessage call,
                                                std::chrono::milliseconds patience = busPatience);
