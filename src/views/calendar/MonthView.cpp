// SPDX-License-Identifier: GPL-3.0-or-later
#include "MonthView.h"

#include "CalendarView.h"
#include "Clock.h"
#include "Follow.h"
#include "Month.h"
#include "MonthCard.h"
#include "NavigationRow.h"
#include "ProgressWidgetView.h"
#include "Rows.h"
#include "ViewSettings.h"

#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

MonthView::MonthView(ModelContext& context, const AppSettings& settings, const ViewSettings& viewSettings,
                     const Clock& clock, QWidget* parent)
    : CalendarPage(context, parent)
    , m_viewSettings(viewSettings)
    , m_quarter(new Card)
    , m_quarterTracker(new ProgressWidgetView(settings, viewSettings, PeriodWord::Quarter))
    , m_navigation(new NavigationRow(tr("Last Month"), tr("Next Month")))
    , m_month(new MonthCard(context, settings, viewSettings, clock))
    , m_error(new QLabel(tr("Error loading month!")))
{
    build();
    connect(m_navigation, &NavigationRow::previousRequested, this, &MonthView::previous);
    connect(m_navigation, &NavigationRow::nextRequested, this, &MonthView::next);
    connect(&m_month->calendar(), &CalendarView::dayRequested, this, &MonthView::showDay);
    onChange(viewSettings.showQuarterStats, this, [this] { refresh(); });
    const QDate today = clock.today();
    showMonth({today.year(), today.month()});
}

void MonthView::build()
{
    m_error->setObjectName("error"_L1);
    m_error->setAlignment(Qt::AlignCenter);
    m_month->setNavigation(m_navigation);
    m_quarter->setFixedWidth(Card::contentWidth);
    auto* quarterColumn = new QVBoxLayout(m_quarter);
    quarterColumn->setContentsMargins(0, 16, 0, 20);
    addCentred(*quarterColumn, m_quarterTracker);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(24, 20, 24, 20);
    column->setSpacing(16);
    column->addWidget(m_error);
    column->addWidget(m_quarter, 0, Qt::AlignHCenter);
    column->addWidget(m_month, 0, Qt::AlignHCenter);
    column->addStretch();
}

void MonthView::showMonth(const YearMonth& period)
{
    m_period = period;
    loadQuarter(period.quarter());
    refresh();
}

void MonthView::turnTo(const std::optional<YearMonth>& period)
{
    if (!period)
        return;
    const int day = m_month->calendar().focusedDay();
    showMonth(*period);
    if (day > 0)
        m_month->calendar().focusDay(day);
}

void MonthView::showDay(QDate date)
{
    if (date.year() < firstYear || date.year() > lastYear)
        return;
    showMonth({date.year(), date.month()});
    m_month->calendar().focusDay(date.day());
}

void MonthView::previous()
{
    turnTo(m_period.previous());
}

void MonthView::next()
{
    turnTo(m_period.next());
}

void MonthView::refresh()
{
    const bool isLoaded = !months().isEmpty();
    if (isLoaded) {
        m_quarterTracker->setMonths(months());
        m_month->setMonth(months().at((m_period.month - 1) % 3));
        m_navigation->setAvailable(m_period.previous().has_value(), m_period.next().has_value());
    }
    m_error->setVisible(!isLoaded);
    m_month->setVisible(isLoaded);
    m_quarter->setVisible(isLoaded && m_viewSettings.showQuarterStats);
}
