// SPDX-License-Identifier: GPL-3.0-or-later
#include "MonthCard.h"

#include "CalendarView.h"
#include "Centred.h"
#include "NavigationRow.h"
#include "ProgressWidgetView.h"
#include "ViewParts.h"
#include "ViewSettings.h"

#include <QVBoxLayout>

MonthCard::MonthCard(const ViewParts& parts, QWidget* parent)
    : Card(parent)
    , m_column(new QVBoxLayout(this))
    , m_calendar(new CalendarView(parts))
    , m_tracker(new ProgressWidgetView(parts, PeriodWord::Month))
{
    setFixedWidth(contentWidth);
    m_column->setContentsMargins(0, 16, 0, 20);
    m_column->setSpacing(8);
    m_column->addWidget(m_calendar, 0, Qt::AlignHCenter);
    addCentred(*m_column, m_tracker);
    m_column->addStretch();

    const auto& shown = parts.viewSettings.showMonthStats;
    m_tracker->setVisible(shown);
    m_follower = parts.viewSettings.showMonthStats.addNotifier([this, &shown] { m_tracker->setVisible(shown); });
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
