// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FileError.h"
#include "WorkTime.h"

#include <QList>
#include <QStringList>

/// Why a file is no calendar file that can be read.
class CalendarFileError : public FileError {
    Q_DECLARE_TR_FUNCTIONS(CalendarFileError)

public:
    using FileError::FileError;
};

struct CalendarFileContents {
    /// In the order of their dates; each date once.
    QList<DayOff> daysOff;
    /// What was left out and why, each in a sentence for the person.
    QStringList problems;
};

/// Reads the all-day events of an iCalendar file. Those that recur each year are expanded for ten years from that of
/// `today`. Throws a FileError if the file cannot be read or is no iCalendar file.
[[nodiscard]] CalendarFileContents readCalendarFile(const QString& path, QDate today = QDate::currentDate());
