// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Symbol.h"

#include <QPropertyNotifier>
#include <QWidget>

#include <memory>

class AppSettings;
class LocationManagerKey;
class WiFiClient;
class WiFiMonitor;

/// Shows whether days are being marked automatically, and whether they could be.
class TrackingIndicator : public QWidget {
    Q_OBJECT

public:
    TrackingIndicator(AppSettings& settings, WiFiClient& wifiClient, LocationManagerKey& locationManager,
                      QWidget* parent = nullptr);
    ~TrackingIndicator() override;

    /// Begins to ask the system, and to follow it. Until then everything is taken to be on.
    void startMonitoring();

    [[nodiscard]] Symbol symbol() const;
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] bool isWiFiUsable() const;
    void refresh();

    AppSettings& m_settings;
    WiFiClient& m_wifiClient;
    LocationManagerKey& m_locationManager;
    std::unique_ptr<WiFiMonitor> m_wifiMonitor;
    QPropertyNotifier m_trackingNotifier;
    QPropertyNotifier m_wifiNotifier;
    QPropertyNotifier m_locationNotifier;
};
