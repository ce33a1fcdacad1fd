// SPDX-License-Identifier: GPL-3.0-or-later
#include "HolidayReview.h"

#include "CountingRecords.h"
#include "HolidayChooser.h"

#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int yearsAhead = 2;

QString storedRegion(const CountingRecords& counting)
{
    const auto region = counting.holidayRegion();
    return region ? region->id : QString();
}

bool hasDate(const QList<DayOff>& daysOff, QDate date)
{
    return std::ranges::find(daysOff, date, &DayOff::date) != daysOff.end();
}

// The holidays of a region that were added for a year, if any were. One that is missing now was taken out.
QList<DayOff> holidaysAdded(const QString& area, int year, const QList<DayOff>& daysOff)
{
    const bool hasAny = std::ranges::any_of(daysOff, [year](const DayOff& dayOff) {
        return dayOff.source == DayOffSource::Holidays && dayOff.date.year() == year;
    });
    return hasAny ? publicHolidays(area, year) : QList<DayOff>();
}

} // namespace

HolidayReview::HolidayReview(CountingRecords& records, QDate today, QWidget* parent)
    : DaysOffReview(records, tr("Public Holidays"), parent)
    , m_today(today)
    , m_before(storedRegion(records))
    , m_chooser(new HolidayChooser(m_before, today.year()))
{
    head().addWidget(m_chooser);
    connect(m_chooser, &HolidayChooser::changed, this, &HolidayReview::showHolidays);
    showHolidays();
}

void HolidayReview::takeFocus()
{
    m_chooser->findChild<QWidget*>("country"_L1)->setFocus(Qt::TabFocusReason);
}

void HolidayReview::showHolidays()
{
    const QString area = m_chooser->area().id;
    const auto present = counting().daysOff();
    QList<ListedDayOff> days;
    for (int year = m_chooser->firstYear(); year <= m_today.year() + yearsAhead; ++year) {
        const QList<DayOff> added = holidaysAdded(m_before, year, present);
        for (const DayOff& holiday : publicHolidays(area, year))
            days.append(listed(holiday, present, hasDate(added, holiday.date)));
    }
    const bool isOther = !m_before.isEmpty() && m_before != area;
    if (isOther)
        days.append(holidaysThatGo(days, present));
    showDays(days, m_chooser->firstYear());
    const QString before = isOther ? holidayAreaName(m_before) : QString();
    say(before.isEmpty() ? tr("Uncheck the dates on which you work.")
                         : tr("Uncheck the dates on which you work. Holidays of %1 that are not checked are taken out.")
                               .arg(before));
}

QList<ListedDayOff> HolidayReview::holidaysThatGo(const QList<ListedDayOff>& shown, const QList<DayOff>& present)
{
    QSet<QDate> shownDates;
    for (const ListedDayOff& listed : shown)
        shownDates.insert(listed.day.date);
    QList<ListedDayOff> days;
    for (const DayOff& dayOff : present) {
        if (dayOff.source == DayOffSource::Holidays && dayOff.date >= m_today && !shownDates.contains(dayOff.date))
            days.append({.day = dayOff,
                         .note = tr("off until now"),
                         .isDim = !counting().counting().value().isScheduled(dayOff.date),
                         .isChecked = false,
                         .isPresent = true});
    }
    return days;
}

ListedDayOff HolidayReview::listed(DayOff holiday, const QList<DayOff>& present, bool wasAdded)
{
    holiday.source = DayOffSource::Holidays;
    const auto same = std::ranges::find(present, holiday.date, &DayOff::date);
    const bool isHoliday = same != present.end() && same->source == DayOffSource::Holidays;
    const bool isWorkday = counting().counting().value().isScheduled(holiday.date);
    return {.day = holiday,
            .note = same != present.end() ? tr("already off")
                    : isWorkday           ? QString()
                                          : tr("not a workday"),
            .isDim = !isWorkday,
            .isChecked = same == present.end() ? !wasAdded : isHoliday,
            .isPresent = isHoliday};
}

bool HolidayReview::store(const QList<DayOff>& chosen, const QList<QDate>& takenOut)
{
    const HolidayRegion region{m_chooser->area().id, m_today.year() + yearsAhead};
    return (takenOut.isEmpty() || counting().removeDaysOff(takenOut)) &&
           counting().setHolidays(region, chosen, m_today);
}
