// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <memory>

class AppSettings;
class Clock;
class DayMarker;
class LocationManagerKey;
class QMenu;
class QSystemTrayIcon;
class TodayEntries;
class TrackingStatus;
class WiFiClient;

/// The icon in the desktop's tray. Its menu only repeats what is also available elsewhere.
class TrayIcon : public QObject {
    Q_OBJECT

public:
    TrayIcon(const AppSettings& settings, WiFiClient& wifiClient, LocationManagerKey& locationManager,
             DayMarker& marker, const Clock& clock);
    ~TrayIcon() override;

Q_SIGNALS:
    void openRequested();
    void checkRequested();
    void quitRequested();

private:
    std::unique_ptr<TrackingStatus> m_status;
    std::unique_ptr<QMenu> m_menu;
    std::unique_ptr<TodayEntries> m_today;
    std::unique_ptr<QSystemTrayIcon> m_icon;
};
