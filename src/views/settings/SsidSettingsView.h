// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <QWidget>

#include <QCoroTask>

#include <memory>

class Button;
class NetworkList;
class QLabel;
class QVBoxLayout;
class WiFiMonitor;
struct ViewParts;

/// The settings of the automatic tracking: the office networks, from a scan or by name, and how often to check. Every
/// change goes straight into the settings.
class SsidSettingsView : public QWidget {
    Q_OBJECT

public:
    SsidSettingsView(const ViewParts& parts, bool headerEnabled, QWidget* parent = nullptr);
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

    /// Adds a name exactly as it is, be it empty or in the list already.
    void append(const QString& ssid);
    void remove(const QString& ssid);
    QCoro::Task<> scan();

    const ViewParts& m_parts;
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
