// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QVariantMap>

class AppSettings;
class Clock;
class CountingRecords;
class DayMarker;

/// What the figures of a day come from.
struct StatusSource {
    const DayMarker& marker;
    const CountingRecords& counting;
    const AppSettings& settings;
    const Clock& clock;
};

/// Today, the figures of its month and quarter, and how far the rules are met, as data/dbus-interfaces describes them.
/// Nothing is created. Throws a StoreError if the store cannot be read.
[[nodiscard]] QVariantMap attendanceStatus(const StatusSource& source, Qt::DayOfWeek weekStart);
