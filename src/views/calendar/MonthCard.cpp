// SPDX-License-Identifier: GPL-3.0-or-later
#include "MonthCard.h"

#include "CalendarView.h"
#include "ViewSettings.h"

MonthCard::MonthCard(DayMarker& marker, const AppSettings& settings, const ViewSettings& viewSettings,
                     const Clock& clock, NavigationRow* navigation, QWidget* parent)
    : TrackerCard(settings, viewSettings, PeriodWord::Month, viewSettings.showMonthStats, parent)
    , m_calendar(new CalendarView(marker, viewSettings, clock))
{
    addHeader(navigation, m_calendar);
}

void MonthCard::setMonth(const std::shared_ptr<Month>& month)
{
    m_calendar->setMonth(month);
    setMonths({month});
}
