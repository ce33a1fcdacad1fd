// SPDX-License-Identifier: GPL-3.0-or-later
#include "CalendarPage.h"

#include "CalendarView.h"
#include "MonthCard.h"
#include "NavigationRow.h"
#include "StoreError.h"
#include "StoredMonths.h"

#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr QMargins pageMargins(24, 20, 24, 20);
constexpr int cardSpacing = 16;

std::optional<YearMonth> firstMonth(const std::optional<YearQuarter>& quarter)
{
    return quarter ? std::optional(YearMonth{quarter->year, quarter->months().front()}) : std::nullopt;
}

} // namespace

CalendarPage::CalendarPage(ModelContext& context, QWidget* parent)
    : QWidget(parent)
    , m_context(context)
    , m_error(new QLabel(tr("Error loading month!")))
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
}

void CalendarPage::connectNavigation(NavigationRow& navigation)
{
    m_navigation = &navigation;
    connect(m_navigation, &NavigationRow::previousRequested, this, &CalendarPage::previous);
    connect(m_navigation, &NavigationRow::nextRequested, this, &CalendarPage::next);
}

void CalendarPage::connectCard(MonthCard& card)
{
    m_cards.push_back(&card);
    connect(&card.calendar(), &CalendarView::dayRequested, this, &CalendarPage::showDay);
}

void CalendarPage::previous()
{
    turnTo(monthBefore());
}

void CalendarPage::next()
{
    turnTo(monthAfter());
}

void CalendarPage::showPeriod(const YearMonth& month)
{
    m_month = month;
    const auto months = loadQuarter();
    const bool isLoaded = !months.isEmpty();
    m_error->setVisible(!isLoaded);
    m_contents->setVisible(isLoaded);
    if (!isLoaded)
        return;
    for (std::size_t i = 0; i < m_cards.size(); ++i)
        m_cards[i]->setMonth(months.at(isQuarter() ? static_cast<qsizetype>(i) : (month.month - 1) % 3));
    showQuarter(months);
    m_navigation->setAvailable(monthBefore().has_value(), monthAfter().has_value());
}

void CalendarPage::showDay(QDate date)
{
    if (date.year() < firstYear || date.year() > lastYear)
        return;
    const YearMonth wanted{date.year(), date.month()};
    const bool isShown = isQuarter() ? wanted.quarter() == m_month.quarter() : wanted == m_month;
    if (!isShown || m_contents->isHidden())
        showPeriod(wanted);
    m_cards.at(isQuarter() ? static_cast<std::size_t>((date.month() - 1) % 3) : 0)->calendar().focusDay(date.day());
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
        return quarterMonths(m_context, m_month.quarter());
    } catch (const StoreError&) {
        return {};
    }
}

void CalendarPage::turnTo(const std::optional<YearMonth>& month)
{
    if (!month)
        return;
    const auto focused = std::ranges::find_if(m_cards, [](auto* card) { return card->calendar().focusedDay() > 0; });
    const int day = focused == m_cards.end() ? 0 : (*focused)->calendar().focusedDay();
    showPeriod(*month);
    if (day > 0)
        (*focused)->calendar().focusDay(day);
}
