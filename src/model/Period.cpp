// SPDX-License-Identifier: GPL-3.0-or-later
#include "Period.h"

#include <QtGlobal>

namespace {

template <class Period> std::optional<Period> withinCalendar(Period period)
{
    return period.year < firstYear || period.year > lastYear ? std::nullopt : std::optional(period);
}

} // namespace

int quarterOf(int month)
{
    if (month < 1 || month > 12)
        qFatal("There is no month %d", month);
    return (month + 2) / 3;
}

std::optional<YearQuarter> YearQuarter::previous() const
{
    return withinCalendar(quarter == 1 ? YearQuarter{year - 1, 4} : YearQuarter{year, quarter - 1});
}

std::optional<YearQuarter> YearQuarter::next() const
{
    return withinCalendar(quarter >= 4 ? YearQuarter{year + 1, 1} : YearQuarter{year, quarter + 1});
}

std::optional<YearMonth> YearMonth::previous() const
{
    return withinCalendar(month == 1 ? YearMonth{year - 1, 12} : YearMonth{year, month - 1});
}

std::optional<YearMonth> YearMonth::next() const
{
    return withinCalendar(month >= 12 ? YearMonth{year + 1, 1} : YearMonth{year, month + 1});
}
