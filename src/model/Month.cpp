// SPDX-License-Identifier: GPL-3.0-or-later
#include "Month.h"

#include <QLocale>

#include <algorithm>

namespace {

QDate firstDay(int year, int month)
{
    const QDate first(year, month, 1);
    if (!first.isValid())
        qFatal("There is no month %d of the year %d", month, year);
    return first;
}

// Counts from the first of the month and not through local midnights, so that no clock change and no day that a time
// zone skipped can shift a weekday.
QDate dateFrom(QDate first, qint64 dayId)
{
    return first.addDays(dayId - 1);
}

QList<Day> grid(QDate first)
{
    const int offset = first.dayOfWeek() % 7; // Qt counts from Monday = 1, the grid from Sunday = 0
    QList<Day> days;
    days.reserve(Month::cellCount);
    for (qint64 i = 0; i < Month::cellCount; ++i) {
        const qint64 number = i - offset + 1;
        const qint64 id = number <= first.daysInMonth() ? number : -number;
        days.append({.id = id, .isWorkday = isMondayToFriday(dateFrom(first, id))});
    }
    return days;
}

} // namespace

bool isMondayToFriday(QDate date)
{
    return date.dayOfWeek() <= Qt::Friday;
}

Month::Month(int yearNumber, int monthNumber)
{
    const QDate first = firstDay(yearNumber, monthNumber);
    year = yearNumber;
    month = monthNumber;
    name = QLocale().monthName(monthNumber);
    daysInMonth = first.daysInMonth();
    days = grid(first);
}

qint64 Month::inOfficeCount(bool vacationDaysCountAsInOffice) const
{
    return std::ranges::count_if(days.value(), [vacationDaysCountAsInOffice](const Day& day) {
        return day.state == DayState::IN_OFFICE || (vacationDaysCountAsInOffice && day.state == DayState::VACATION_DAY);
    });
}

qint64 Month::workdayCount() const
{
    return std::ranges::count_if(days.value(), [](const Day& day) { return day.isInMonth() && day.isWorkday; });
}

std::optional<qsizetype> Month::indexOf(int dayOfMonth) const
{
    const auto& cells = days.value();
    const auto found = std::ranges::find(cells, dayOfMonth, &Day::id);
    return found == cells.end() || !found->isInMonth() ? std::nullopt : std::optional(found - cells.begin());
}

QDate Month::dateOf(qint64 dayId) const
{
    return dateFrom(QDate(year, month, 1), dayId);
}

bool Month::isWorkday(qint64 dayId) const
{
    return isMondayToFriday(dateOf(dayId));
}
