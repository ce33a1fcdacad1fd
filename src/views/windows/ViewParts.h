// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CalendarParts.h"

#include <functional>

class AppSettings;
class BackupService;
class Clock;
class CountingRecords;
class DayMarker;
class InOfficeCheck;
class LaunchAtLogin;
class LocationManagerKey;
class ModelContext;
class UndoHistory;
class ViewSettings;
class WiFiClient;

/// What the windows hand out to their views, each of which asks for what it needs. All of it outlives them.
struct ViewParts {
    ModelContext& context;
    DayMarker& marker;
    UndoHistory& history;
    CountingRecords& counting;
    BackupService& backups;
    AppSettings& settings;
    ViewSettings& viewSettings;
    Clock& clock;
    WiFiClient& wifiClient;
    LocationManagerKey& locationManager;
    InOfficeCheck& check;
    LaunchAtLogin& launchAtLogin;
    [[nodiscard]] CalendarParts calendar() const { return {marker, counting, settings, viewSettings, clock}; }

    /// Whether a window may have transparent parts.
    std::function<bool()> blendsWindows = {};
};
