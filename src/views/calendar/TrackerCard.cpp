// SPDX-License-Identifier: GPL-3.0-or-later
#include "TrackerCard.h"

#include "CountingRecords.h"
#include "Follow.h"
#include "Fonts.h"
#include "LinkButton.h"
#include "Month.h"
#include "NavigationRow.h"
#include "PlanPopover.h"
#include "ProgressWidgetView.h"
#include "RuleLines.h"
#include "SpokenGroup.h"
#include "ViewSettings.h"

#include <QGridLayout>

namespace {

constexpr int spacing = 8;
constexpr int leastInset = 6;
constexpr int headerWidth = 398;

} // namespace

TrackerCard::TrackerCard(const CalendarParts& parts, PeriodWord period, const QProperty<bool>& isTrackerShown,
                         QWidget* parent)
    : Card(parent)
    , m_parts(parts)
    , m_period(period)
    , m_isTrackerShown(isTrackerShown)
    , m_column(new QVBoxLayout(this))
    , m_tracker(new ProgressWidgetView(parts.settings, parts.viewSettings, period, &parts.counting.counting()))
{
    setFixedWidth(contentWidth(font()));
    // The tracker has some room around it already.
    constexpr int inside = SpokenGroup::ringRoom;
    m_column->setContentsMargins(0, 16 - inside, 0, 12 - inside);
    m_column->setSpacing(spacing - inside);
    m_column->addWidget(m_tracker);
    follow(isTrackerShown, this, [this, &isTrackerShown] { m_tracker->setVisible(isTrackerShown); });
    m_tracker->setGoalPressable();
    connect(m_tracker, &ProgressWidgetView::pressed, this, &TrackerCard::plan);
}

void TrackerCard::setMonths(const QList<std::shared_ptr<Month>>& months)
{
    m_months = months;
    m_tracker->setMonths(months);
    const auto dayOf = [](const Month& month, int day) { return QDate(month.year, month.month, day); };
    m_days = {dayOf(*months.first(), 1), dayOf(*months.last(), months.last()->daysInMonth)};
    if (m_rules != nullptr)
        m_rules->setPeriod(m_days);
    else if (m_hasRules)
        buildRules();
}

void TrackerCard::addRules()
{
    m_hasRules = true;
    connect(&m_parts.counting, &CountingRecords::changed, this, &TrackerCard::buildRules);
}

void TrackerCard::buildRules()
{
    if (m_rules != nullptr || m_parts.counting.rules().value().isEmpty())
        return;
    const auto place = m_period == PeriodWord::Quarter ? RuleLines::Place::Quarter : RuleLines::Place::Month;
    m_rules = new RuleLines(m_parts, place, m_isTrackerShown);
    connect(m_rules, &RuleLines::popoverRequested, this, &TrackerCard::popoverRequested);
    m_column->addWidget(m_rules);
    m_rules->setPeriod(m_days);
}

void TrackerCard::plan()
{
    Q_EMIT popoverRequested(new PlanPopover(m_parts, PlanSubject::ofGoals(m_parts, m_months), m_tracker));
}

void TrackerCard::addHeader(NavigationRow* navigation, QWidget* title)
{
    auto* header = new QGridLayout;
    // The arrows of the navigation are above the ends of the tracker. Without them a grid has room for its weeks.
    const int room = (contentWidth(font()) - fonts::grown(headerWidth, font())) / 2;
    const int inset = navigation != nullptr ? qMax(leastInset, room) : leastInset;
    header->setContentsMargins(inset, SpokenGroup::ringRoom, inset, 0);
    header->setVerticalSpacing(spacing);
    if (navigation != nullptr)
        header->addWidget(navigation, 0, 0);
    header->addWidget(title, 1, 0, Qt::AlignHCenter);
    if (navigation != nullptr) {
        // Beside the name, which is in the middle, so that nothing moves when the link appears.
        header->addWidget(navigation->todayLink(), 1, 0, Qt::AlignTop | Qt::AlignRight);
        navigation->todayLink()->raise();
    }
    m_column->insertLayout(0, header);
}

void TrackerCard::addAboveTracker(QWidget* widget)
{
    widget->setFixedWidth(ProgressWidgetView::columnWidth(font()));
    m_column->insertWidget(m_column->indexOf(m_tracker), widget, 0, Qt::AlignHCenter);
}

void TrackerCard::addBelowTracker(QWidget* widget)
{
    m_column->addWidget(widget);
    m_column->addSpacing(SpokenGroup::ringRoom);
}
