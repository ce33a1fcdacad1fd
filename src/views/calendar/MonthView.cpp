// SPDX-License-Identifier: GPL-3.0-or-later
#include "MonthView.h"

#include "Clock.h"
#include "Follow.h"
#include "MonthCard.h"
#include "NavigationRow.h"
#include "ViewSettings.h"

#include <QVBoxLayout>

MonthView::MonthView(DayMarker& marker, const AppSettings& settings, const ViewSettings& viewSettings,
                     const Clock& clock, QWidget* parent)
    : CalendarPage(marker, clock, parent)
    , m_quarter(new TrackerCard(settings, viewSettings, PeriodWord::Quarter, viewSettings.showQuarterStats))
{
    auto* navigation = new NavigationRow(tr("Last Month"), tr("Next Month"));
    auto* month = new MonthCard(marker, settings, viewSettings, clock, navigation);
    connectNavigation(*navigation);
    connectCard(*month);
    contents().addWidget(month, 0, Qt::AlignHCenter);
    contents().addWidget(m_quarter, 0, Qt::AlignHCenter);
    const auto& isQuarterShown = viewSettings.showQuarterStats;
    follow(isQuarterShown, m_quarter, [this, &isQuarterShown] { m_quarter->setVisible(isQuarterShown); });
    const QDate today = clock.today();
    showPeriod({today.year(), today.month()});
}

void MonthView::showQuarter(const QList<std::shared_ptr<Month>>& months)
{
    m_quarter->setMonths(months);
}
