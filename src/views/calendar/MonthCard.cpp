// SPDX-License-Identifier: GPL-3.0-or-later
#include "MonthCard.h"

#include "CalendarView.h"
#include "Follow.h"
#include "NavigationRow.h"
#include "ProgressWidgetView.h"
#include "Rows.h"
#include "ViewSettings.h"

#include <QVBoxLayout>

MonthCard::MonthCard(ModelContext& context, const AppSettings& settings, const ViewSettings& viewSettings,
                     const Clock& clock, QWidget* parent)
    : Card(parent)
    , m_column(new QVBoxLayout(this))
    , m_calendar(new CalendarView(context, viewSettings, clock))
    , m_tracker(new ProgressWidgetView(settings, viewSettings, PeriodWord::Month))
{
    setFixedWidth(contentWidth);
    m_column->setContentsMargins(0, 16, 0, 20);
    m_column->setSpacing(8);
    m_column->addWidget(m_calendar, 0, Qt::AlignHCenter);
    addCentred(*m_column, m_tracker);
    m_column->addStretch();

    const auto& isShown = viewSettings.showMonthStats;
    follow(isShown, this, [this, &isShown] { m_tracker->setVisible(isShown); });
}

void MonthCard::setMonth(const std::shared_ptr<Month>& month)
{
    m_calendar->setMonth(month);
    m_tracker->setMonths({month});
}

void MonthCard::setNavigation(NavigationRow* row)
{
    row->setContentsMargins(20, 0, 20, 0);
    m_column->insertWidget(0, row);
}
