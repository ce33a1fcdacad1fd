// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class AppSettings;
class Clock;
class CountingRecords;
class DayMarker;
class ViewSettings;

/// What the views of the calendar need. All of it outlives them.
struct CalendarParts {
    DayMarker& marker;
    CountingRecords& counting;
    const AppSettings& settings;
    const ViewSettings& viewSettings;
    const Clock& clock;
};
