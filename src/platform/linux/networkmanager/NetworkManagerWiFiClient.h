// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "NetworkManager.h"
#include "NetworkScan.h"
#include "WiFiClient.h"

#include <memory>

class PowerWatch;

/// Wi-Fi as NetworkManager runs it. Without NetworkManager, or while it is gone, the computer has no Wi-Fi.
class NetworkManagerWiFiClient : public WiFiClient {
    Q_OBJECT

public:
    explicit NetworkManagerWiFiClient(SystemBus& bus, ScanTiming timing = {});
    ~NetworkManagerWiFiClient() override;

    [[nodiscard]] QCoro::Task<std::optional<WiFiInterface>> defaultInterface() override;
    /// Also waits for NetworkManager.
    [[nodiscard]] QCoro::Task<std::optional<WiFiInterface>> readyInterface() override;
    [[nodiscard]] QCoro::Task<std::optional<WiFiInterface>> interfaceWithName(QString name) override;
    /// Scans only if no password is needed for it; otherwise returns the networks that were seen lately.
    [[nodiscard]] QCoro::Task<QList<WiFiNetwork>> scanForNetworks(QString interfaceName) override;
    void startMonitoringPowerEvents() override;
    void stopMonitoringPowerEvents() override;

Q_SIGNALS:
    /// What readyInterface() waits for: a change, or the end of its time.
    void mayBeReady();

private:
    using StateIfRunning = std::optional<NetworkManagerState>;

    [[nodiscard]] QCoro::Task<NetworkManagerState> readState();
    [[nodiscard]] QCoro::Task<StateIfRunning> readStateIfRunning();
    [[nodiscard]] QCoro::Task<StateIfRunning> readStateOnceReady();
    [[nodiscard]] QCoro::Task<QList<WiFiNetwork>> findNetworks(QString interfaceName);
    [[nodiscard]] QCoro::Task<ScanOutcome> scan(QString devicePath);

    SystemBus& m_bus;
    ScanTiming m_timing;
    /// As last read.
    NetworkManagerState m_state;
    int m_monitors = 0;
    std::unique_ptr<PowerWatch> m_powerWatch;
    /// Destroyed first: who waits for one of its answers then stops monitoring.
    NetworkManager m_networkManager;
};
