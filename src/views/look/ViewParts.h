// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class AppSettings;
class Clock;
class InOfficeCheck;
class LaunchAtLogin;
class LocationManagerKey;
class ModelContext;
class ViewSettings;
class WiFiClient;

/// What the views work on. They borrow all of it; it outlives them.
struct ViewParts {
    ModelContext& context;
    AppSettings& settings;
    ViewSettings& viewSettings;
    Clock& clock;
    WiFiClient& wifiClient;
    LocationManagerKey& locationManager;
    InOfficeCheck& check;
    LaunchAtLogin& launchAtLogin;
};
