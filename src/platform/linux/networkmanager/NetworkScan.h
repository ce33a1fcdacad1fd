// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "BusCall.h"

#include <QObject>

#include <QCoroTask>

#include <chrono>

class NetworkManager;
class QDBusMessage;
class SystemBus;

struct ScanTiming {
    /// How long a scan may take.
    std::chrono::milliseconds scanTimeout = std::chrono::seconds(20);
    /// The last access points are listed only some time after a scan has ended.
    std::chrono::milliseconds settlingTime = std::chrono::milliseconds(300);
    /// With iwd NetworkManager reports the end of a scan when it begins: the results come this much later.
    std::chrono::milliseconds lateResultsTime = std::chrono::seconds(6);
    /// How long each bus call may take.
    std::chrono::milliseconds callTimeout = busTimeout;
    /// How long a radio, or NetworkManager, may take to come up.
    std::chrono::milliseconds comingUpTime = std::chrono::seconds(10);
};

enum class ScanOutcome { NotPermitted, TimedOut, Ended };

/// One scan by one device.
class NetworkScan : public QObject {
    Q_OBJECT

public:
    NetworkScan(SystemBus& bus, NetworkManager& networkManager, const QString& devicePath, QObject* parent)
        : QObject(parent)
        , m_bus(bus)
        , m_networkManager(networkManager)
        , m_devicePath(devicePath)
    {
    }

    /// Scans, and returns once the results can be read. Throws a BusError if NetworkManager fails, and Abandoned if it
    /// or this is destroyed meanwhile.
    [[nodiscard]] QCoro::Task<ScanOutcome> run(ScanTiming timing);

Q_SIGNALS:
    void ended();

private:
    [[nodiscard]] QCoro::Task<bool> request();
    [[nodiscard]] QCoro::Task<bool> hasPermission();

    SystemBus& m_bus;
    NetworkManager& m_networkManager;
    QString m_devicePath;
    bool m_hasEnded = false;

private Q_SLOTS:
    void handlePropertiesChanged(const QDBusMessage& signal);
};
