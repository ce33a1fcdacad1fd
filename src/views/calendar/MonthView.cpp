// SPDX-License-Identifier: GPL-3.0-or-later
#include "MonthView.h"

#include "CalendarView.h"
#include "Clock.h"
#include "DayMarker.h"
#include "Follow.h"
#include "MonthCard.h"
#include "NavigationRow.h"
#include "OpenDaysLine.h"
#include "OpenDaysReview.h"
#include "ViewSettings.h"

#include <QVBoxLayout>

MonthView::MonthView(DayMarker& marker, const AppSettings& settings, const ViewSettings& viewSettings,
                     const Clock& clock, QWidget* parent)
    : CalendarPage(marker, clock, parent)
    , m_viewSettings(viewSettings)
    , m_openDays(marker, clock)
    , m_quarter(new TrackerCard(settings, viewSettings, PeriodWord::Quarter, viewSettings.showQuarterStats))
{
    auto* navigation = new NavigationRow(tr("Last Month"), tr("Next Month"));
    m_month = new MonthCard(marker, settings, viewSettings, clock, navigation);
    connectNavigation(*navigation);
    connectCard(*m_month);
    contents().addWidget(m_month, 0, Qt::AlignHCenter);
    contents().addWidget(m_quarter, 0, Qt::AlignHCenter);
    const auto& isQuarterShown = viewSettings.showQuarterStats;
    follow(isQuarterShown, m_quarter, [this, &isQuarterShown] { m_quarter->setVisible(isQuarterShown); });
    const QDate today = clock.today();
    showPeriod({today.year(), today.month()});
    const auto refresh = [this] { refreshOpenDays(false); };
    // After the change is saved.
    connect(&marker, &DayMarker::changed, this, refresh, Qt::QueuedConnection);
    connect(&clock, &Clock::dayChanged, this, refresh);
    onChange(viewSettings.showUnmarkedWorkdays, this, refresh);
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
    const auto count = m_viewSettings.showUnmarkedWorkdays ? m_openDays.in(*month).size() : 0;
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
    m_review = new OpenDaysReview(marker(), m_month->calendar());
    connect(m_openDaysLine, &OpenDaysLine::reviewRequested, this,
            [this] { m_review->start(m_openDays.in(*m_month->calendar().month())); });
}
