// SPDX-License-Identifier: GPL-3.0-or-later
#include "CalendarPage.h"

#include "Clock.h"
#include "CountingRecords.h"
#include "DayMarker.h"
#include "Labels.h"
#include "LinkButton.h"
#include "NavigationRow.h"
#include "StoreError.h"
#include "UsualWeekPlanner.h"
#include "WindowSize.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLoggingCategory>
#include <QMenu>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(logCalendar, "pellory.calendar", QtInfoMsg)

constexpr int cardSpacing = 16;

} // namespace

CalendarPage::CalendarPage(const CalendarParts& parts, const QString& errorText, QWidget* parent)
    : QWidget(parent)
    , m_parts(parts)
    , m_today(parts.clock.today())
    , m_error(labels::announced(new QLabel(errorText)))
    , m_contents(new QWidget)
    , m_column(new QVBoxLayout(m_contents))
{
    m_error->setObjectName("error"_L1);
    m_error->setAlignment(Qt::AlignCenter);
    m_column->setContentsMargins({});
    m_column->setSpacing(cardSpacing);
    auto* page = new QVBoxLayout(this);
    page->setContentsMargins(pageMargins);
    page->addWidget(m_error);
    page->addWidget(m_contents);
    page->addStretch();
    connect(&parts.clock, &Clock::dayChanged, this, &CalendarPage::followToday);
}

void CalendarPage::connectNavigation(NavigationRow& navigation)
{
    m_navigation = &navigation;
    connect(m_navigation, &NavigationRow::previousRequested, this, [this] { previous(Qt::MouseFocusReason); });
    connect(m_navigation, &NavigationRow::nextRequested, this, [this] { next(Qt::MouseFocusReason); });
    connect(m_navigation, &NavigationRow::todayRequested, this, [this] {
        // The link is about to be hidden.
        showToday(m_navigation->todayLink()->hasFocus() ? Qt::TabFocusReason : Qt::OtherFocusReason);
    });
}

void CalendarPage::connectCard(MonthCard& card)
{
    m_cards.push_back(&card);
    connectTracker(card);
    connect(&card.calendar(), &CalendarView::dayRequested, this, [this](QDate date) { showDay(date); });
    connect(&card.calendar(), &CalendarView::detailsRequested, this, &CalendarPage::detailsRequested);
    connect(&card.calendar(), &CalendarView::popoverRequested, this, &CalendarPage::popoverRequested);
}

void CalendarPage::connectTracker(TrackerCard& tracker)
{
    connect(&tracker, &TrackerCard::popoverRequested, this, &CalendarPage::popoverRequested);
}

void CalendarPage::previous(Qt::FocusReason reason)
{
    if (const auto month = monthBefore())
        turnTo(*month, reason);
}

void CalendarPage::next(Qt::FocusReason reason)
{
    if (const auto month = monthAfter())
        turnTo(*month, reason);
}

void CalendarPage::turnTo(const YearMonth& month, Qt::FocusReason /*reason*/)
{
    showPeriod(month);
}

void CalendarPage::showPeriod(const YearMonth& month)
{
    m_month = month;
    const bool isLoaded = tryToLoad();
    m_retry.setNeeded(!isLoaded);
    m_error->setVisible(!isLoaded);
    m_contents->setVisible(isLoaded);
    if (!isLoaded)
        return;
    m_navigation->setAvailable(monthBefore().has_value(), monthAfter().has_value());
    m_navigation->todayLink()->setVisible(!isShown(m_today));
}

bool CalendarPage::tryToLoad()
{
    try {
        load();
        return true;
    } catch (const StoreError& error) {
        if (m_error->isHidden()) // the first time
            qCWarning(logCalendar, "Cannot load a month: %s", error.what());
        return false;
    }
}

void CalendarPage::showDay(QDate date, Qt::FocusReason reason)
{
    if (date.year() < firstYear || date.year() > lastYear)
        return;
    if (!isShown(date) || m_contents->isHidden())
        showPeriod({date.year(), date.month()});
    if (m_contents->isHidden())
        return;
    focusDay(date, reason);
}

void CalendarPage::showToday(Qt::FocusReason reason)
{
    showDay(m_today, reason);
}

void CalendarPage::focusCurrentDay(Qt::FocusReason reason)
{
    if (!m_contents->isHidden())
        focusCurrent(reason);
}

void CalendarPage::addEntries(QMenu& menu)
{
    QAction* record = menu.addAction(tr("Save Record…"));
    connect(record, &QAction::triggered, this, [this] { Q_EMIT recordRequested(span()); });
}

void CalendarPage::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_PageUp:
        return previous();
    case Qt::Key_PageDown:
        return next();
    default:
        QWidget::keyPressEvent(event);
    }
}

std::optional<YearMonth> CalendarPage::monthBefore() const
{
    return isQuarter() ? firstMonth(m_month.quarter().previous()) : m_month.previous();
}

std::optional<YearMonth> CalendarPage::monthAfter() const
{
    return isQuarter() ? firstMonth(m_month.quarter().next()) : m_month.next();
}

QList<std::shared_ptr<Month>> CalendarPage::loadQuarter() const
{
    try {
        UsualWeekPlanner planner(m_parts.marker, m_parts.counting, m_parts.clock);
        return planner.quarterMonths(m_parts.marker.context(), m_month.quarter());
    } catch (const StoreError& error) {
        if (m_error->isHidden()) // the first time
            qCWarning(logCalendar, "Cannot load a month: %s", error.what());
        return {};
    }
}

DaySpan CalendarPage::span() const
{
    const auto months = m_month.quarter().months();
    const QDate first(m_month.year, isQuarter() ? months.front() : m_month.month, 1);
    const QDate lastMonth(m_month.year, isQuarter() ? months.back() : m_month.month, 1);
    return {first, lastMonth.addDays(lastMonth.daysInMonth() - 1)};
}

void CalendarPage::addEntries(QMenu& menu)
{
    if (m_contents->isHidden())
        return;
    if (m_parts.counting.usualWeek().weekdays.isEmpty())
        connect(menu.addAction(tr("Plan Usual Week…")), &QAction::triggered, this, &CalendarPage::usualWeekRequested);
    else
        connect(menu.addAction(tr("Plan Usual Week")), &QAction::triggered, this, &CalendarPage::planUsualWeek);
}

void CalendarPage::planUsualWeek()
{
    try {
        if (UsualWeekPlanner(m_parts.marker, m_parts.counting, m_parts.clock).plan(span()) == 0)
            Q_EMIT messageRequested(isQuarter() ? tr("None of your usual days is left to plan in this quarter")
                                                : tr("None of your usual days is left to plan in this month"));
    } catch (const StoreError& error) {
        qCWarning(logCalendar, "The usual week cannot be planned: %s", error.what());
        Q_EMIT messageRequested(tr("Nothing was planned, because the data file cannot be read"));
    }
}

bool CalendarPage::isShown(QDate date) const
{
    const YearMonth month{date.year(), date.month()};
    return isQuarter() ? month.quarter() == m_month.quarter() : month == m_month;
}

QDate CalendarPage::focusedDate() const
{
    const CalendarView* calendar = focusedCalendar();
    return calendar == nullptr ? QDate() : calendar->month()->dateOf(calendar->focusedDay());
}

CalendarView& CalendarPage::calendarOf(QDate date) const
{
    return m_cards.at(isQuarter() ? static_cast<std::size_t>((date.month() - 1) % 3) : 0)->calendar();
}

CalendarView* CalendarPage::focusedCalendar() const
{
    const auto focused = std::ranges::find_if(m_cards, [](auto* card) { return card->calendar().focusedDay() > 0; });
    return focused == m_cards.end() ? nullptr : &(*focused)->calendar();
}

void CalendarPage::turnTo(const std::optional<YearMonth>& month, Qt::FocusReason reason)
{
    if (!month)
        return;
    CalendarView* const calendar = focusedCalendar();
    if (calendar != nullptr && calendar->focusedDay() != m_reachedDay)
        m_wantedDay = calendar->focusedDay();
    showPeriod(*month);
    if (calendar == nullptr)
        return;
    calendar->focusDay(m_wantedDay, reason);
    m_reachedDay = calendar->focusedDay();
}

void CalendarPage::followToday()
{
    const QDate before = std::exchange(m_today, m_parts.clock.today());
    if (!isShown(before) || isShown(m_today))
        m_navigation->todayLink()->setVisible(!isShown(m_today));
    else if (focusedDate().isValid())
        showDay(m_today, Qt::OtherFocusReason);
    else
        showPeriod({m_today.year(), m_today.month()});
}
