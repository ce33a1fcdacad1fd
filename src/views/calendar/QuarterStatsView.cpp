// SPDX-License-Identifier: GPL-3.0-or-later
#include "QuarterStatsView.h"

#include "Clock.h"
#include "Follow.h"
#include "Fonts.h"
#include "Month.h"
#include "NavigationRow.h"
#include "ProgressWidgetView.h"
#include "Rows.h"
#include "ViewSettings.h"

#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

QuarterStatsView::QuarterStatsView(const AppSettings& settings, const ViewSettings& viewSettings, const Clock& clock,
                                   bool showNavigation, QWidget* parent)
    : Card(parent)
    , m_clock(clock)
    , m_navigation(new NavigationRow(tr("Last Quarter"), tr("Next Quarter")))
    , m_title(new QLabel)
    , m_workdays(new QLabel)
    , m_tracker(new ProgressWidgetView(settings, viewSettings, PeriodWord::Quarter))
{
    setFixedWidth(contentWidth);
    m_title->setFont(fonts::title(font()));
    m_title->setAlignment(Qt::AlignCenter);
    m_workdays->setObjectName("workdays"_L1);
    m_workdays->setFont(fonts::subheadline(font()));
    m_workdays->setForegroundRole(QPalette::PlaceholderText);
    m_workdays->setAlignment(Qt::AlignCenter);
    m_navigation->setContentsMargins(20, 0, 20, 0);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 16, 0, 20);
    column->addWidget(m_navigation);
    column->addWidget(m_title);
    column->addWidget(m_workdays);
    column->addSpacing(10);
    addCentred(*column, m_tracker);
    column->addStretch();

    m_navigation->setVisible(showNavigation);
    connect(m_navigation, &NavigationRow::previousRequested, this, [this] { request(m_quarter.previous()); });
    connect(m_navigation, &NavigationRow::nextRequested, this, [this] { request(m_quarter.next()); });
    connect(&clock, &Clock::dayChanged, this, &QuarterStatsView::refresh);
    const auto& isTrackerShown = viewSettings.showQuarterStats;
    follow(isTrackerShown, this, [this, &isTrackerShown] { m_tracker->setVisible(isTrackerShown); });
}

void QuarterStatsView::setQuarter(const YearQuarter& quarter, const QList<std::shared_ptr<Month>>& months)
{
    m_quarter = quarter;
    m_months = months;
    m_tracker->setMonths(months);
    refresh();
}

void QuarterStatsView::request(const std::optional<YearQuarter>& quarter)
{
    if (quarter)
        Q_EMIT quarterRequested(*quarter);
}

void QuarterStatsView::refresh()
{
    const QString name = tr("Q%1", "a quarter of the year").arg(m_quarter.quarter);
    const bool thisYear = m_quarter.year == m_clock.today().year();
    m_title->setText(thisYear ? name : tr("%1 %2", "quarter and year").arg(name, QString::number(m_quarter.year)));
    qint64 workdays = 0;
    for (const auto& month : m_months)
        workdays += month->workdayCount();
    m_workdays->setText(workdaysText(workdays));
    m_navigation->setAvailable(m_quarter.previous().has_value(), m_quarter.next().has_value());
}
