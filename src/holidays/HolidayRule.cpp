// SPDX-License-Identifier: GPL-3.0-or-later
#include "HolidayRule.h"

#include <algorithm>

namespace {

QDate dateOf(DayFromEaster day, int year)
{
    return easterSunday(year).addDays(day.days);
}

QDate dateOf(DayOfMonth day, int year)
{
    return {year, day.month, std::min(day.day, QDate(year, day.month, 1).daysInMonth())};
}

QDate dateOf(WeekdayNearDay day, int year)
{
    const QDate near = dateOf(day.day, year);
    const int later = (day.weekday - near.dayOfWeek() + 7) % 7;
    return near.addDays(day.direction == WeekdayNearDay::Direction::After || later == 0 ? later : later - 7);
}

} // namespace

// The method of Meeus, Jones and Butcher.
QDate easterSunday(int year)
{
    const int golden = year % 19;
    const int century = year / 100;
    const int yearOfCentury = year % 100;
    const int epact = (19 * golden + century - century / 4 - (century - (century + 8) / 25 + 1) / 3 + 15) % 30;
    const int weekday = (32 + 2 * (century % 4) + 2 * (yearOfCentury / 4) - epact - yearOfCentury % 4) % 7;
    const int correction = (golden + 11 * epact + 22 * weekday) / 451;
    const int days = epact + weekday - 7 * correction + 114;
    return {year, days / 31, days % 31 + 1};
}

std::optional<QDate> HolidayRule::dateIn(int year) const
{
    if (year < from || year > until || exceptYears.contains(year) ||
        (everyYears > 1 && (year - from) % everyYears != 0))
        return {};
    const QDate date = std::visit([year](const auto& when) { return dateOf(when, year); }, day);
    return date.addDays(moves.at(static_cast<std::size_t>(date.dayOfWeek() - 1)));
}
