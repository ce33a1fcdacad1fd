// SPDX-License-Identifier: GPL-3.0-or-later
#include "MonthCard.h"

#include "CalendarView.h"
#include "ViewSettings.h"

MonthCard::MonthCard(const CalendarParts& parts, NavigationRow* navigation, QWidget* parent)
    : TrackerCard(parts, PeriodWord::Month, parts.viewSettings.showMonthStats, parent)
    , m_calendar(new CalendarView(parts))
{
    addHeader(navigation, m_calendar);
}

void MonthCard::setMonth(const std::shared_ptr<Month>& month)
{
    m_calendar->setMonth(month);
    setMonths({month});
}
