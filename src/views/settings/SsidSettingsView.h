// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <QWidget>

#include <QCoroTask>

#include <memory>

class AppSettings;
class Button;
class InOfficeCheck;
class LocationManager;
class NetworkList;
class QLabel;
class QVBoxLayout;
class WiFiClient;
class WiFiMonitor;

/// The settings of the automatic tracking: the office networks, from a scan or by name, and how often to check. Each
/// change is stored at once.
class SsidSettingsView : public QWidget {
    Q_OBJECT

public:
    SsidSettingsView(AppSettings& settings, WiFiClient& wifiClient, LocationManager& locationManager,
                     InOfficeCheck& check, bool headerEnabled, QWidget* parent = nullptr);
    ~SsidSettingsView() override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void addTracking(QVBoxLayout& column, bool headerEnabled);
    void addInterval(QVBoxLayout& column);
    void addSelectedNetworks(QVBoxLayout& column);
    void addCustomNetwork(QVBoxLayout& column);
    void addNetworksInRange(QVBoxLayout& column);
    void refresh();
    void enableScan(bool isEnabled);
    [[nodiscard]] QString emptyListText() const;

    /// Adds a name exactly as it is, even if it is empty or in the list already.
    void append(const QString& ssid);
    void remove(const QString& ssid);
    QCoro::Task<> scan();

    AppSettings& m_settings;
    WiFiClient& m_wifiClient;
    LocationManager& m_locationManager;
    InOfficeCheck& m_check;
    std::unique_ptr<WiFiMonitor> m_wifiMonitor;
    QStringList m_wifiNetworks;
    bool m_isScanning = false;
    bool m_firstScan = true;

    QLabel* m_wifiWarning;
    QLabel* m_wifiAdvice;
    QLabel* m_locationWarning;
    NetworkList* m_selected;
    NetworkList* m_inRange;
    Button* m_scan;
};
