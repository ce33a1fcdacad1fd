// SPDX-License-Identifier: GPL-3.0-or-later
#include "SystemBus.h"

#include <QLoggingCategory>
#include <QUuid>

#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

Q_LOGGING_CATEGORY(logBus, "pellory.bus", QtInfoMsg)

// Later on the bus is only looked for when it is needed, so that nothing wakes the processor for ever.
constexpr auto longestRetryDelay = 64s;

} // namespace

SystemBus::SystemBus()
{
    m_retry.setSingleShot(true);
    connect(&m_retry, &QTimer::timeout, this, &SystemBus::connectToBus);
}

SystemBus::~SystemBus()
{
    QDBusConnection::disconnectFromBus(m_connection.name());
}

QDBusConnection SystemBus::connection()
{
    if (!m_connection.isConnected())
        connectToBus();
    return m_connection;
}

void SystemBus::connectToBus()
{
    const bool isFirst = !std::exchange(m_hasTried, true);
    QDBusConnection::disconnectFromBus(m_connection.name());
    m_connection = QDBusConnection::connectToBus(QDBusConnection::SystemBus, QUuid::createUuid().toString());
    if (!m_connection.isConnected()) {
        if (!m_retry.isActive() && m_retryDelay <= longestRetryDelay)
            m_retry.start(std::exchange(m_retryDelay, 2 * m_retryDelay));
        return;
    }
    m_retry.stop();
    // QtDBus itself sends this signal.
    m_connection.connect({}, u"/org/freedesktop/DBus/Local"_s, u"org.freedesktop.DBus.Local"_s, u"Disconnected"_s, this,
                         SLOT(handleLoss()));
    if (isFirst)
        return;
    qCInfo(logBus, "Connected to the system bus again");
    Q_EMIT reconnected();
}

void SystemBus::handleLoss()
{
    if (m_connection.isConnected()) // somebody has needed it since
        return;
    qCWarning(logBus, "Lost the system bus");
    m_retryDelay = 1s;
    m_retry.start(m_retryDelay);
    Q_EMIT lost();
}
