// SPDX-License-Identifier: GPL-3.0-or-later
#include "GridPage.h"

#include "CalendarHeader.h"
#include "CalendarView.h"
#include "Clock.h"
#include "CountingRecords.h"
#include "DayMarker.h"
#include "DaySelection.h"
#include "Month.h"
#include "MonthCard.h"
#include "StoreError.h"
#include "UsualWeekPlanner.h"

#include <QLocale>
#include <QLoggingCategory>
#include <QMenu>

#include <algorithm>

namespace {

Q_LOGGING_CATEGORY(logGridPage, "pellory.calendar", QtInfoMsg)

std::optional<YearMonth> firstMonth(const std::optional<YearQuarter>& quarter)
{
    return quarter ? std::optional(YearMonth{quarter->year, quarter->months().front()}) : std::nullopt;
}

} // namespace

GridPage::GridPage(const CalendarParts& parts, QWidget* parent)
    : CalendarPage(parts, CalendarPage::tr("Error loading month!"), parent)
    , m_selection(std::make_unique<DaySelection>(parts, *this))
{
    connect(m_selection.get(), &DaySelection::popoverRequested, this, &GridPage::popoverRequested);
}

GridPage::~GridPage() = default;

void GridPage::connectCard(MonthCard& card)
{
    m_cards.push_back(&card);
    m_selection->watch(card.calendar());
    connectTracker(card);
    connect(&card.calendar(), &CalendarView::dayRequested, this, [this](QDate date) { showDay(date); });
    connect(&card.calendar(), &CalendarView::detailsRequested, this, &GridPage::detailsRequested);
    connect(&card.calendar(), &CalendarView::popoverRequested, this, &GridPage::popoverRequested);
}

void GridPage::connectTracker(TrackerCard& tracker)
{
    connect(&tracker, &TrackerCard::popoverRequested, this, &GridPage::popoverRequested);
}

void GridPage::load()
{
    m_selection->followTurn();
    UsualWeekPlanner planner(parts().marker, parts().counting, parts().clock);
    const auto months = planner.quarterMonths(parts().marker.context(), month().quarter());
    for (std::size_t i = 0; i < m_cards.size(); ++i)
        m_cards[i]->setMonth(months.at(isQuarter() ? static_cast<qsizetype>(i) : (month().month - 1) % 3));
    showQuarter(months);
}

void GridPage::focusDay(QDate date, Qt::FocusReason reason)
{
    calendarOf(date).focusDay(date.day(), reason);
}

void GridPage::focusCurrent(Qt::FocusReason reason)
{
    const auto last = std::ranges::find_if(m_cards, [this](auto* card) { return card->isAncestorOf(focusWidget()); });
    const QDate day = isShown(today()) ? today() : QDate(month().year, month().month, 1);
    CalendarView& calendar = last == m_cards.end() ? calendarOf(day) : (*last)->calendar();
    calendar.focusCurrentDay(reason);
}

QString GridPage::title() const
{
    QStringList titles;
    for (MonthCard* card : m_cards)
        titles.append(calendarTitle(*card->calendar().month(), today()));
    return QLocale().createSeparatedList(titles);
}

std::optional<YearMonth> GridPage::monthBefore() const
{
    return isQuarter() ? firstMonth(month().quarter().previous()) : month().previous();
}

std::optional<YearMonth> GridPage::monthAfter() const
{
    return isQuarter() ? firstMonth(month().quarter().next()) : month().next();
}

DaySpan GridPage::span() const
{
    const auto months = month().quarter().months();
    const QDate first(month().year, isQuarter() ? months.front() : month().month, 1);
    const QDate lastMonth(month().year, isQuarter() ? months.back() : month().month, 1);
    return {first, lastMonth.addDays(lastMonth.daysInMonth() - 1)};
}

QDate GridPage::focusedDate() const
{
    const CalendarView* calendar = focusedCalendar();
    return calendar == nullptr ? QDate() : calendar->month()->dateOf(calendar->focusedDay());
}

CalendarView& GridPage::calendarOf(QDate date) const
{
    return m_cards.at(isQuarter() ? static_cast<std::size_t>((date.month() - 1) % 3) : 0)->calendar();
}

CalendarView* GridPage::focusedCalendar() const
{
    const auto focused = std::ranges::find_if(m_cards, [](auto* card) { return card->calendar().focusedDay() > 0; });
    return focused == m_cards.end() ? nullptr : &(*focused)->calendar();
}

void GridPage::turnTo(const YearMonth& month, Qt::FocusReason reason)
{
    CalendarView* const calendar = focusedCalendar();
    if (calendar != nullptr && calendar->focusedDay() != m_reachedDay)
        m_wantedDay = calendar->focusedDay();
    showPeriod(month);
    if (calendar == nullptr)
        return;
    calendar->focusDay(m_wantedDay, reason);
    m_reachedDay = calendar->focusedDay();
}

void GridPage::addEntries(QMenu& menu)
{
    if (!isLoaded())
        return;
    if (parts().counting.usualWeek().weekdays.isEmpty())
        connect(menu.addAction(tr("Plan Usual Week…")), &QAction::triggered, this, &GridPage::usualWeekRequested);
    else
        connect(menu.addAction(tr("Plan Usual Week")), &QAction::triggered, this, &GridPage::planUsualWeek);
    CalendarPage::addEntries(menu);
}

void GridPage::planUsualWeek()
{
    try {
        if (UsualWeekPlanner(parts().marker, parts().counting, parts().clock).plan(span()) == 0)
            Q_EMIT messageRequested(isQuarter() ? tr("None of your usual days is left to plan in this quarter")
                                                : tr("None of your usual days is left to plan in this month"));
    } catch (const StoreError& error) {
        qCWarning(logGridPage, "The usual week cannot be planned: %s", error.what());
        Q_EMIT messageRequested(tr("Nothing was planned, because the data file cannot be read"));
    }
}
