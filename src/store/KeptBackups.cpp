// SPDX-License-Identifier: GPL-3.0-or-later
#include "KeptBackups.h"

#include <algorithm>
#include <functional>

namespace {

/// Lets the first time of each of a number of periods pass.
class PeriodFilter {
public:
    using Period = int (*)(QDate);

    PeriodFilter(int count, Period period)
        : m_left(count)
        , m_period(period)
    {
    }

    [[nodiscard]] bool passes(QDate date)
    {
        const int period = m_period(date);
        if (m_left == 0 || period == m_last)
            return false;
        m_last = period;
        --m_left;
        return true;
    }

private:
    int m_left;
    Period m_period;
    int m_last = -1;
};

int dayOf(QDate date)
{
    return static_cast<int>(date.toJulianDay());
}

int weekOf(QDate date)
{
    return dayOf(date.addDays(1 - date.dayOfWeek()));
}

int monthOf(QDate date)
{
    return 12 * date.year() + date.month();
}

} // namespace

QList<QDateTime> keptBackups(QList<QDateTime> times, const QDateTime& now)
{
    std::ranges::sort(times, std::greater());
    PeriodFilter days(7, dayOf);
    PeriodFilter weeks(5, weekOf);
    PeriodFilter months(12, monthOf);
    times.removeIf([&](const QDateTime& time) {
        if (time > now)
            return false;
        const QDate date = time.date();
        const bool isOfDay = days.passes(date);
        const bool isOfWeek = weeks.passes(date);
        return !months.passes(date) && !isOfWeek && !isOfDay && date != now.date();
    });
    return times;
}
