// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class AppSettings;
class InOfficeCheck;
class LaunchAtLogin;
class LazyStack;
class LocationManager;
class QVBoxLayout;
class WiFiClient;

/// The settings, on three pages.
class SettingsView : public QWidget {
    Q_OBJECT

public:
    SettingsView(AppSettings& settings, WiFiClient& wifiClient, LocationManager& locationManager, InOfficeCheck& check,
                 LaunchAtLogin& launchAtLogin, QWidget* parent = nullptr);

Q_SIGNALS:
    void welcomeRequested();

protected:
    bool focusNextPrevChild(bool next) override;

private:
    [[nodiscard]] QWidget* makeHeader(LazyStack* pages);
    void addLocationLine(QVBoxLayout& column, LocationManager& manager);
    [[nodiscard]] QWidget* makeGeneralPage(AppSettings& settings, LaunchAtLogin& launchAtLogin);
};
