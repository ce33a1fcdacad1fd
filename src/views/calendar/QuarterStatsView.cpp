// SPDX-License-Identifier: GPL-3.0-or-later
#include "QuarterStatsView.h"

#include "AttendanceStatistics.h"
#include "Clock.h"
#include "CountingRecords.h"
#include "DayMarker.h"
#include "Fonts.h"
#include "Month.h"
#include "ViewSettings.h"

#include <QLabel>

using namespace Qt::StringLiterals;

QuarterStatsView::QuarterStatsView(const CalendarParts& parts, NavigationRow* navigation, QWidget* parent)
    : TrackerCard(parts, PeriodWord::Quarter, parts.viewSettings.showQuarterStats, parent)
    , m_clock(parts.clock)
    , m_counting(parts.counting)
    , m_title(new QLabel)
    , m_workdays(new QLabel)
{
    m_title->setFont(fonts::title(font()));
    m_title->setContentsMargins(0, 0, 0, 6);
    m_workdays->setObjectName("workdays"_L1);
    m_workdays->setFont(fonts::body(font()));
    m_workdays->setForegroundRole(QPalette::PlaceholderText);
    m_workdays->setAlignment(Qt::AlignCenter);
    addHeader(navigation, m_title);
    addBelowTracker(m_workdays);
    addRules();
    connect(&parts.clock, &Clock::dayChanged, this, &QuarterStatsView::refresh);
    connect(&parts.counting, &CountingRecords::changed, this, &QuarterStatsView::refresh);
    // Vacation may be left out of the workdays. After the change is saved.
    connect(&parts.marker, &DayMarker::changed, this, &QuarterStatsView::refresh, Qt::QueuedConnection);
}

void QuarterStatsView::setQuarter(const YearQuarter& quarter, const QList<std::shared_ptr<Month>>& months)
{
    m_quarter = quarter;
    setMonths(months);
    m_months = months;
    refresh();
}

void QuarterStatsView::refresh()
{
    qint64 workdays = 0;
    for (const auto& month : m_months)
        workdays += workdayCount(*month, m_counting.counting());
    m_workdays->setText(workdaysText(workdays));
    const QString name = tr("Q%1", "a quarter of the year").arg(m_quarter.quarter);
    const bool thisYear = m_quarter.year == m_clock.today().year();
    m_title->setText(thisYear ? name : tr("%1 %2", "quarter and year").arg(name, QString::number(m_quarter.year)));
}
