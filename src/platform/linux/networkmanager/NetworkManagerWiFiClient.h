// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "NetworkManager.h"
#include "WiFiClient.h"

#include <chrono>
#include <memory>

class QDBusMessage;
class QDBusServiceWatcher;

struct ScanTiming {
    /// How long a scan may take.
    std::chrono::milliseconds longest = std::chrono::seconds(20);
    /// How long after its end the last access points are still being listed.
    std::chrono::milliseconds settling = std::chrono::milliseconds(300);
    /// How long each question may take.
    std::chrono::milliseconds answer = busTimeout;
};

/// The Wi-Fi of this computer as NetworkManager runs it. A NetworkManager that is not there, or not any more, is a
/// computer without Wi-Fi until it comes back.
class NetworkManagerWiFiClient : public WiFiClient {
    Q_OBJECT

public:
    explicit NetworkManagerWiFiClient(ScanTiming timing = {});
    ~NetworkManagerWiFiClient() override;

    [[nodiscard]] QCoro::Task<std::optional<WiFiInterface>> defaultInterface() override;
    [[nodiscard]] QCoro::Task<std::optional<WiFiInterface>> interfaceWithName(QString name) override;
    /// Asks for a scan only where that needs nobody's leave; otherwise tells the networks that were seen lately.
    [[nodiscard]] QCoro::Task<QList<WiFiNetwork>> scanForNetworks(QString interfaceName) override;
    void startMonitoringPowerEvents() override;
    void stopMonitoringPowerEvents() override;

private:
    [[nodiscard]] QCoro::Task<NetworkManagerState> readStateIfThere();
    [[nodiscard]] QCoro::Task<bool> isScanned(QString devicePath);
    QCoro::Task<> tellPower();

    ScanTiming m_timing;
    NetworkManager m_networkManager;
    int m_monitors = 0;
    std::unique_ptr<QDBusServiceWatcher> m_serviceWatcher;
    /// The last default interface that was told of.
    QString m_toldInterface;
    bool m_isTelling = false;
    bool m_isToldOutdated = false;

private Q_SLOTS:
    void handleManagerChanged(const QDBusMessage& signal);
    void handleDeviceChanged(uint state, uint oldState);
    void handleBusGone();
};
