// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QProperty>

#include <QCoroTask>

class WiFiClient;

/// Knows whether Wi-Fi is on, for as long as somebody wants to show it.
class WiFiMonitor : public QObject {
public:
    explicit WiFiMonitor(WiFiClient& client);
    ~WiFiMonitor() override;

    /// True until the computer has told otherwise.
    QProperty<bool> isWiFiEnabled{true};

private:
    QCoro::Task<> readDefaultInterface();
    QCoro::Task<> readInterface(QString name);

    WiFiClient& m_wifiClient;
    bool m_isMonitoring = false;
};
