// SPDX-License-Identifier: GPL-3.0-or-later
#include "CalendarFileReview.h"

#include "CalendarFile.h"
#include "CountingRecords.h"
#include "Labels.h"
#include "TextArea.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostLinesShown = 4;

} // namespace

CalendarFileReview::CalendarFileReview(CountingRecords& records, const QString& fileName,
                                       const CalendarFileContents& contents, QDate today, QWidget* parent)
    : DaysOffReview(records, tr("Days Off from %1", "file").arg(fileName), parent)
{
    const auto present = datesOff();
    QList<ListedDayOff> days;
    for (const DayOff& dayOff : contents.daysOff)
        days.append(listed(dayOff, present));
    showDays(days, today.year());
    say(days.isEmpty() ? tr("The file has no all-day entries.") : tr("Uncheck the dates on which you work."));
    if (!contents.problems.isEmpty())
        showProblems(contents.problems);
}

void CalendarFileReview::showProblems(const QStringList& problems)
{
    head().addWidget(labels::error(tr("Not everything in the file can be read:")));
    auto* list = new TextArea(static_cast<int>(qBound<qsizetype>(2, problems.size(), mostLinesShown)));
    list->setObjectName("problems"_L1);
    list->setAccessibleName(tr("What was left out"));
    list->setReadOnly(true);
    list->setPlainText(problems.join(u'\n'));
    head().addWidget(list);
}

ListedDayOff CalendarFileReview::listed(DayOff dayOff, const QSet<QDate>& present)
{
    dayOff.source = DayOffSource::File;
    const bool isPresent = present.contains(dayOff.date);
    const bool isWorkday = counting().counting().value().isScheduled(dayOff.date);
    return {.day = dayOff,
            .note = isPresent   ? tr("already off")
                    : isWorkday ? QString()
                                : tr("not a workday"),
            .isDim = !isWorkday,
            .isChecked = !isPresent};
}

bool CalendarFileReview::store(const QList<DayOff>& chosen, const QList<QDate>& /*takenOut*/)
{
    return counting().addDaysOff(chosen);
}
