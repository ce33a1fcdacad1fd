// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Day.h"

#include <QDate>
#include <QList>
#include <QProperty>

#include <optional>

/// Whether a date is a workday. Holidays are not known.
[[nodiscard]] bool isMondayToFriday(QDate date);

/// The attendance of one calendar month.
class Month {
public:
    /// Every month is a grid of this many cells. Its first column is Sunday.
    static constexpr qsizetype cellCount = 38;

    /// A new month in which every day is unknown. `month` is 1 to 12; any other number stops the program.
    Month(int year, int month);
    /// An empty record, for the store to fill.
    Month() = default;
    Month(const Month&) = delete;
    Month& operator=(const Month&) = delete;
    ~Month() = default;

    QProperty<int> year;
    QProperty<int> month;
    /// Full name of the month, in the language that was set when the record was made, such as "March".
    QProperty<QString> name;
    QProperty<int> daysInMonth;
    QProperty<QList<Day>> days;

    [[nodiscard]] qint64 inOfficeCount(bool vacationDaysCountAsInOffice) const;
    [[nodiscard]] qint64 workdayCount() const;
    /// The grid index of a day of the month, 1 to 31, if the month has that day.
    [[nodiscard]] std::optional<qsizetype> indexOf(int dayOfMonth) const;
    /// The date of a cell. Numbers of 0 and less count back from the first of the month.
    [[nodiscard]] QDate dateOf(qint64 dayId) const;
    /// Whether that date is a Monday to Friday.
    [[nodiscard]] bool isWorkday(qint64 dayId) const;

    /// By the number of the month alone: months of different years do not sort chronologically.
    friend bool operator<(const Month& a, const Month& b) { return a.month.value() < b.month.value(); }
    friend bool operator==(const Month& a, const Month& b) { return &a == &b; }
};
