// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QList>
#include <QString>

#include <array>
#include <limits>
#include <optional>
#include <variant>

/// A number of days from Easter Sunday.
struct DayFromEaster {
    int days = 0;
};

/// A day of a month. In a month that is shorter, it is the last.
struct DayOfMonth {
    int month = 1;
    int day = 1;
};

/// The first such weekday on or after a day, or the last on or before it.
struct WeekdayNearDay {
    enum class Direction { Before, After };

    int weekday = Qt::Monday;
    Direction direction = Direction::After;
    DayOfMonth day;
};

/// When a public holiday is, and where.
struct HolidayRule {
    enum class Substitute { None, Monday, Nearest, Next };

    std::variant<DayFromEaster, DayOfMonth, WeekdayNearDay> day;
    /// By how many days the holiday is moved if it falls on a weekday, Monday first.
    std::array<int, 7> moves = {};
    Substitute substitute = Substitute::None;
    int from = std::numeric_limits<int>::min();
    int until = std::numeric_limits<int>::max();
    int everyYears = 1;
    QList<int> exceptYears = {};
    /// The ids of the areas where it holds. Empty if everywhere in the country.
    QStringList areas = {};
    QString name;

    [[nodiscard]] std::optional<QDate> dateIn(int year) const;
    [[nodiscard]] bool isIn(const QString& area) const { return areas.isEmpty() || areas.contains(area); }
};

/// Of the Gregorian calendar.
[[nodiscard]] QDate easterSunday(int year);
