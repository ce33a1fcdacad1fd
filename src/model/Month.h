// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Day.h"

#include <QDate>
#include <QList>
#include <QProperty>

#include <optional>

/// What makes a workday: holidays are not known.
[[nodiscard]] bool isMondayToFriday(QDate date);

/// The attendance of one calendar month: a record whose fields are read, written and followed one by one.
class Month {
public:
    /// Every month is a grid of this many cells, whose first column is Sunday.
    static constexpr qsizetype cellCount = 38;

    /// The fields of a month that was stored earlier.
    struct Fields {
        int year = 0;
        int month = 0;
        QString name;
        int daysInMonth = 0;
        QList<Day> days;
    };

    /// A new month in which every day is unknown. `month` is 1 to 12; an impossible month stops the program.
    Month(int year, int month);
    explicit Month(Fields fields);
    Month(const Month&) = delete;
    Month& operator=(const Month&) = delete;
    ~Month() = default;

    QProperty<int> year;
    QProperty<int> month;
    /// Full name of the month in the language in which the record was made, such as "March".
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
