// SPDX-License-Identifier: GPL-3.0-or-later
#include "QuarterStatsView.h"

#include "Clock.h"
#include "Fonts.h"
#include "Month.h"
#include "ViewSettings.h"

#include <QLabel>

using namespace Qt::StringLiterals;

QuarterStatsView::QuarterStatsView(const AppSettings& settings, const ViewSettings& viewSettings, const Clock& clock,
                                   NavigationRow* navigation, QWidget* parent)
    : TrackerCard(settings, viewSettings, PeriodWord::Quarter, viewSettings.showQuarterStats, parent)
    , m_clock(clock)
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
    connect(&clock, &Clock::dayChanged, this, &QuarterStatsView::refresh);
}

void QuarterStatsView::setQuarter(const YearQuarter& quarter, const QList<std::shared_ptr<Month>>& months)
{
    m_quarter = quarter;
    setMonths(months);
    qint64 workdays = 0;
    for (const auto& month : months)
        workdays += month->workdayCount();
    m_workdays->setText(workdaysText(workdays));
    refresh();
}

void QuarterStatsView::refresh()
{
    const QString name = tr("Q%1", "a quarter of the year").arg(m_quarter.quarter);
    const bool thisYear = m_quarter.year == m_clock.today().year();
    m_title->setText(thisYear ? name : tr("%1 %2", "quarter and year").arg(name, QString::number(m_quarter.year)));
}
