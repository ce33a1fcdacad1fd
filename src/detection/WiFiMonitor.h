// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QProperty>

#include <QCoroTask>

class WiFiClient;

/// Tracks whether Wi-Fi is on, for a screen that shows it.
class WiFiMonitor : public QObject {
public:
    explicit WiFiMonitor(WiFiClient& client);
    ~WiFiMonitor() override;

    /// False if the system cannot be asked. Then Wi-Fi counts as on.
    [[nodiscard]] bool isMonitoring() const { return m_isMonitoring; }

    /// True until it was read for the first time.
    QProperty<bool> isWiFiEnabled{true};

private:
    QCoro::Task<> readDefaultInterface();
    QCoro::Task<> readInterface(QString name);

    WiFiClient& m_wifiClient;
    bool m_isMonitoring = false;
};
