// SPDX-License-Identifier: GPL-3.0-or-later
#include "MonthView.h"

#include "CalendarView.h"
#include "Clock.h"
#include "CountingRecords.h"
#include "DayMarker.h"
#include "Follow.h"
#include "MonthCard.h"
#include "NavigationRow.h"
#include "OpenDaysLine.h"
#include "OpenDaysReview.h"
#include "ViewSettings.h"

#include <QVBoxLayout>

MonthView::MonthView(const CalendarParts& parts, QWidget* parent)
    : GridPage(parts, parent)
    , m_openDays(parts.marker, parts.counting, parts.clock)
    , m_quarter(new TrackerCard(parts, PeriodWord::Quarter, parts.viewSettings.showQuarterStats))
{
    auto* navigation = new NavigationRow(tr("Last Month"), tr("Next Month"));
    m_month = new MonthCard(parts, navigation);
    connectNavigation(*navigation);
    connectCard(*m_month);
    connectTracker(*m_quarter);
    m_month->addRules();
    m_quarter->addRules();
    contents().addWidget(m_month, 0, Qt::AlignHCenter);
    contents().addWidget(m_quarter, 0, Qt::AlignHCenter);
    const auto& isQuarterShown = parts.viewSettings.showQuarterStats;
    follow(isQuarterShown, m_quarter, [this, &isQuarterShown] { m_quarter->setVisible(isQuarterShown); });
    const QDate today = parts.clock.today();
    showPeriod({today.year(), today.month()});
    const auto refresh = [this] { refreshOpenDays(false); };
    // After the change is saved.
    connect(&parts.marker, &DayMarker::changed, this, refresh, Qt::QueuedConnection);
    connect(&parts.clock, &Clock::dayChanged, this, refresh);
    connect(&parts.counting, &CountingRecords::changed, this, refresh);
    onChange(parts.viewSettings.showUnmarkedWorkdays, this, refresh);
}

void MonthView::showQuarter(const QList<std::shared_ptr<Month>>& months)
{
    m_quarter->setMonths(months);
    refreshOpenDays(true);
}

void MonthView::refreshOpenDays(bool isTurned)
{
    const Month* month = m_month->calendar().month();
    if (month == nullptr) // which could not be read
        return;
    const auto count = parts().viewSettings.showUnmarkedWorkdays ? m_openDays.in(*month).size() : 0;
    if (count > 0) {
        buildOpenDaysLine();
        m_openDaysLine->setCount(static_cast<int>(count), isTurned);
    } else if (m_openDaysLine != nullptr) {
        if (m_openDaysLine->isAncestorOf(window()->focusWidget()))
            focusCurrentDay(Qt::TabFocusReason);
        m_openDaysLine->hide();
    }
}

void MonthView::buildOpenDaysLine()
{
    if (m_openDaysLine != nullptr)
        return;
    m_openDaysLine = new OpenDaysLine;
    m_month->addAboveTracker(m_openDaysLine);
    m_review = new OpenDaysReview(parts().marker, m_month->calendar());
    connect(m_openDaysLine, &OpenDaysLine::reviewRequested, this,
            [this] { m_review->start(m_openDays.in(*m_month->calendar().month())); });
}
