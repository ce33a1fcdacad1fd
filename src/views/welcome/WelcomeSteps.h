// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>

class AppSettings;
class Clock;
struct CalendarParts;
class InOfficeCheck;
class LaunchAtLogin;
class LocationManager;
class QWidget;
class ViewSettings;
class WiFiClient;

/// The contents of the steps of the first run.
class WelcomeSteps {
    Q_DECLARE_TR_FUNCTIONS(WelcomeSteps)

public:
    /// What Pellory is, with a sample month to try out. That month is never stored.
    [[nodiscard]] static QWidget* makeIntroduction(const CalendarParts& parts);
    /// The goals, and what the sample month makes of them.
    [[nodiscard]] static QWidget* makeGoals(AppSettings& settings, const ViewSettings& viewSettings,
                                            const Clock& clock);
    /// Notifications and the launch at login.
    [[nodiscard]] static QWidget* makeGeneral(AppSettings& settings, LaunchAtLogin& launchAtLogin);
    [[nodiscard]] static QWidget* makeWiFi(AppSettings& settings, WiFiClient& wifiClient,
                                           LocationManager& locationManager, InOfficeCheck& check);
    /// What is set now, and what the colours mean.
    [[nodiscard]] static QWidget* makeSummary(const AppSettings& settings, const LaunchAtLogin& launchAtLogin);
};
