// SPDX-License-Identifier: GPL-3.0-or-later
#include "WeekColumn.h"

#include "AppSettings.h"
#include "Clock.h"
#include "CountingRecords.h"
#include "DayMarker.h"
#include "Follow.h"
#include "ModelContext.h"
#include "Month.h"
#include "StoreError.h"
#include "StoredDays.h"
#include "ViewSettings.h"

#include <QGridLayout>
#include <QLoggingCategory>

#include <algorithm>

namespace {

Q_LOGGING_CATEGORY(logWeeks, "pellory.calendar", QtInfoMsg)

QDate mondayIn(QDate rowStart)
{
    return rowStart.addDays((Qt::Monday - rowStart.dayOfWeek() + GridOrder::columns) % GridOrder::columns);
}

bool asksForWeeks(const AttendanceRule& rule)
{
    return rule.span == AttendanceRule::Span::Week && rule.bound == AttendanceRule::Bound::AtLeast &&
           rule.subject == AttendanceRule::Subject::InOffice;
}

} // namespace

WeekColumn::WeekColumn(const CalendarParts& parts, QGridLayout& grid, int firstRow)
    : m_parts(parts)
{
    for (std::size_t row = 0; row < m_labels.size(); ++row) {
        m_labels[row] = new WeekLabel;
        m_labels[row]->hide();
        grid.addWidget(m_labels[row], firstRow + static_cast<int>(row), GridOrder::columns);
    }
    onChange(parts.settings.vacationDaysCountAsInOffice, this, [this] { Q_EMIT changed(); });
    // The days of the neighbouring months.
    connect(&parts.marker, &DayMarker::changed, this, [this](const ChangedDays& days) {
        if (std::ranges::any_of(days.dates, [this](QDate date) { return m_span.contains(date); }))
            Q_EMIT changed();
    });
}

WeekColumn::~WeekColumn()
{
    for (const auto& label : m_labels)
        delete label;
}

void WeekColumn::show(const Month& month, const GridOrder& order)
{
    if (!m_parts.marker.context().contains(month))
        return hide();
    m_span = {order.dateAt(0), order.dateAt(GridOrder::rows * GridOrder::columns - 1)};
    try {
        const CountedDays days = countedDays(m_parts.marker.context(), m_span, m_parts.counting.counting(),
                                             m_parts.settings.vacationDaysCountAsInOffice);
        const QDate last = month.dateOf(month.daysInMonth);
        for (int row = 0; row < GridOrder::rows; ++row) {
            const QDate start = order.dateAt(row * GridOrder::columns);
            WeekLabel& label = *m_labels.at(static_cast<std::size_t>(row));
            label.setVisible(start <= last);
            label.setFigures(figuresOf(days, start));
        }
    } catch (const StoreError& error) {
        qCWarning(logWeeks, "The weeks of a month cannot be counted: %s", error.what());
        hide();
    }
}

void WeekColumn::hide()
{
    for (const auto& label : m_labels)
        label->hide();
}

WeekFigures WeekColumn::figuresOf(const CountedDays& days, QDate rowStart) const
{
    WeekFigures figures{.number = mondayIn(rowStart).weekNumber()};
    for (int day = 0; day < GridOrder::columns; ++day)
        figures.officeDays += days.on(rowStart.addDays(day)).isInOffice ? 1 : 0;
    for (const AttendanceRule& rule : m_parts.counting.rules().value()) {
        if (!asksForWeeks(rule))
            continue;
        const auto progress =
            ruleProgress(rule, days, rowStart, m_parts.clock.today(), m_parts.viewSettings.weekStart());
        if (!progress)
            continue;
        figures.rule = {rule.name, progress->counted, progress->wanted,
                        progress->verdict == RuleProgress::Verdict::Kept};
        break;
    }
    return figures;
}
