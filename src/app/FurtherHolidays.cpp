// SPDX-License-Identifier: GPL-3.0-or-later
#include "FurtherHolidays.h"

#include "Clock.h"
#include "CountingRecords.h"
#include "PublicHolidays.h"

#include <algorithm>

namespace {

constexpr int furtherYears = 2;
// The store may hold any number as the last year.
constexpr int earliestYear = 2000;

} // namespace

FurtherHolidays::FurtherHolidays(CountingRecords& counting, const Clock& clock)
    : m_counting(counting)
    , m_clock(clock)
{
}

void FurtherHolidays::start()
{
    connect(&m_clock, &Clock::dayChanged, this, &FurtherHolidays::addMissing);
    addMissing();
}

void FurtherHolidays::addMissing()
{
    const auto region = m_counting.holidayRegion();
    const int lastYear = m_clock.today().year() + furtherYears;
    if (!region || region->lastYear >= lastYear)
        return;
    QList<DayOff> holidays;
    for (int year = std::max(region->lastYear + 1, earliestYear); year <= lastYear; ++year)
        holidays.append(publicHolidays(region->id, year));
    if (holidays.isEmpty()) // a region that only a later version knows
        return;
    const QList<DayOff> known = m_counting.daysOff(); // which keep their names
    holidays.removeIf([&known](const DayOff& holiday) {
        return std::ranges::find(known, holiday.date, &DayOff::date) != known.end();
    });
    m_counting.setHolidays({region->id, lastYear}, holidays, m_clock.today());
}
