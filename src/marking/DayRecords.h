// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DayRecord.h"
#include "DaySpan.h"

#include <QList>

class DayMarker;

/// From the first to the last day of the calendar.
[[nodiscard]] DaySpan wholeCalendar();

/// What is stored about the days of a span, in order. Days that are unknown, and about which nothing else is stored
/// either, are left out. Throws a StoreError if the store cannot be read.
[[nodiscard]] QList<DayRecord> dayRecords(const DayMarker& marker, DaySpan span);
