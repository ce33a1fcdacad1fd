// SPDX-License-Identifier: GPL-3.0-or-later
#include "NetworkScan.h"

#include "Delay.h"
#include "NetworkManager.h"
#include "NetworkManagerNames.h"
#include "SignalAwaiter.h"
#include "SystemBus.h"

#include <QDBusArgument>
#include <QLoggingCategory>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(logScan, "pellory.wifi", QtInfoMsg)

} // namespace

QCoro::Task<ScanOutcome> NetworkScan::run(ScanTiming timing)
{
    const bool isRequested = co_await request();
    if (!isRequested) {
        qCDebug(logScan, "Scanning is not permitted: reading the networks already known");
        co_return ScanOutcome::NotPermitted;
    }
    qCDebug(logScan, "Scanning");
    if (!m_hasEnded) {
        QTimer::singleShot(timing.scanTimeout, this, &NetworkScan::ended);
        co_await nextSignal(this, &NetworkScan::ended);
    }
    co_await delay(timing.settlingTime, this);
    co_return m_hasEnded ? ScanOutcome::Ended : ScanOutcome::TimedOut;
}

// A request without permission might open a password prompt.
QCoro::Task<bool> NetworkScan::request()
{
    const bool isPermitted = co_await hasPermission();
    if (!isPermitted)
        co_return false;
    // Before the request: the scan can end before its reply arrives.
    m_bus.connection().connect(networkManagerService, m_devicePath, propertiesInterface, u"PropertiesChanged"_s,
                               {wirelessInterface}, u"sa{sv}as"_s, this, SLOT(handlePropertiesChanged(QDBusMessage)));
    try {
        co_await m_networkManager.requestScan(m_devicePath, false);
    } catch (const BusError& error) {
        if (error.name() != "org.freedesktop.NetworkManager.PermissionDenied"_L1)
            throw;
        co_return false;
    }
    co_return true;
}

QCoro::Task<bool> NetworkScan::hasPermission()
{
    try {
        const AuthorizationStatus permission = co_await m_networkManager.readScanPermission();
        co_return isAccessGranted(permission);
    } catch (const BusError& error) {
        qCWarning(logScan, "Cannot read the permission to scan: %s", error.what());
    }
    co_return false;
}

void NetworkScan::handlePropertiesChanged(const QDBusMessage& signal)
{
    const auto changed = qdbus_cast<QVariantMap>(signal.arguments().value(1));
    if (!changed.contains(u"LastScan"_s))
        return;
    m_hasEnded = true;
    Q_EMIT ended();
}
