// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "WorkTime.h"

#include <QCoreApplication>
#include <QList>
#include <QStringList>

#include <stdexcept>

/// Why a calendar file cannot be read, and what to do, in words for the person.
class CalendarFileError : public std::runtime_error {
    Q_DECLARE_TR_FUNCTIONS(CalendarFileError)

public:
    explicit CalendarFileError(const QString& description)
        : std::runtime_error(description.toStdString())
    {
    }

    [[nodiscard]] QString description() const { return QString::fromUtf8(what()); }
};

struct CalendarFileContents {
    /// In the order of their dates; each date once.
    QList<DayOff> daysOff;
    /// What was left out and why, each in a sentence for the person.
    QStringList problems;
};

/// Reads the all-day events of an iCalendar file. Those that recur each year are expanded for ten years from that of
/// `today`. Throws a CalendarFileError if the file cannot be read or is no iCalendar file.
[[nodiscard]] CalendarFileContents readCalendarFile(const QString& path, QDate today = QDate::currentDate());
