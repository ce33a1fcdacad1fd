// SPDX-License-Identifier: GPL-3.0-or-later
#include "CalendarFileReview.h"

#include "CalendarFile.h"
#include "CountingRecords.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostProblemsShown = 4;

} // namespace

CalendarFileReview::CalendarFileReview(CountingRecords& records, const QString& fileName,
                                       const CalendarFileContents& contents, QDate today, QWidget* parent)
    : DaysOffReview(records, tr("Days Off from %1", "file").arg(fileName), parent)
{
    const auto present = counting().daysOff();
    QList<ListedDayOff> days;
    for (const DayOff& dayOff : contents.daysOff)
        days.append(listed(dayOff, present));
    showDays(days, today);
    QStringList lines{days.isEmpty() ? tr("The file has no all-day entries.")
                                     : tr("Uncheck the dates on which you work.")};
    lines += contents.problems.first(qMin(contents.problems.size(), mostProblemsShown));
    if (const auto more = contents.problems.size() - mostProblemsShown; more > 0)
        lines.append(more == 1 ? tr("1 more entry was left out.")
                               : tr("%n more entries were left out.", nullptr, static_cast<int>(more)));
    say(lines.join(u'\n'));
}

ListedDayOff CalendarFileReview::listed(DayOff dayOff, const QList<DayOff>& present)
{
    dayOff.source = DayOffSource::File;
    const bool isPresent = std::ranges::find(present, dayOff.date, &DayOff::date) != present.end();
    const bool isWorkday = counting().counting().value().isScheduled(dayOff.date);
    return {.day = dayOff,
            .note = isPresent   ? tr("already a day off")
                    : isWorkday ? QString()
                                : tr("not a workday anyway"),
            .isDim = !isWorkday,
            .isChecked = !isPresent};
}

bool CalendarFileReview::store(const QList<DayOff>& chosen, const QList<QDate>& /*takenOut*/)
{
    return counting().addDaysOff(chosen);
}
