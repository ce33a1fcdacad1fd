// SPDX-License-Identifier: GPL-3.0-or-later
#include "QuarterView.h"

#include "CalendarView.h"
#include "Clock.h"
#include "MonthCard.h"
#include "QuarterStatsView.h"

#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int margin = 24;
constexpr int spacing = 16;
constexpr int widthForRow = 3 * Card::contentWidth + 2 * spacing + 2 * margin;

} // namespace

QuarterView::QuarterView(ModelContext& context, const AppSettings& settings, const ViewSettings& viewSettings,
                         const Clock& clock, QWidget* parent)
    : CalendarPage(context, parent)
    , m_stats(new QuarterStatsView(settings, viewSettings, clock, true))
    , m_row(new QBoxLayout(QBoxLayout::TopToBottom))
    , m_error(new QLabel(tr("Error loading month!")))
{
    m_error->setObjectName("error"_L1);
    m_error->setAlignment(Qt::AlignCenter);
    m_row->setSpacing(spacing);
    for (MonthCard*& card : m_cards) {
        card = new MonthCard(context, settings, viewSettings, clock);
        m_row->addWidget(card, 0, Qt::AlignHCenter);
        connect(&card->calendar(), &CalendarView::dayRequested, this, &QuarterView::showDay);
    }
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(margin, 20, margin, 20);
    column->setSpacing(spacing);
    column->addWidget(m_error);
    column->addWidget(m_stats, 0, Qt::AlignHCenter);
    column->addLayout(m_row);
    column->addStretch();

    connect(m_stats, &QuarterStatsView::quarterRequested, this, &QuarterView::turnTo);
    const QDate today = clock.today();
    showQuarter(YearMonth{today.year(), today.month()}.quarter());
}

void QuarterView::showQuarter(const YearQuarter& quarter)
{
    m_quarter = quarter;
    loadQuarter(quarter);
    refresh();
}

QSize QuarterView::minimumSizeHint() const
{
    return {Card::contentWidth + 2 * margin, QWidget::minimumSizeHint().height()};
}

void QuarterView::turnTo(const std::optional<YearQuarter>& quarter)
{
    if (!quarter)
        return;
    const auto focused = std::ranges::find_if(m_cards, [](auto* card) { return card->calendar().focusedDay() > 0; });
    const int day = focused == m_cards.end() ? 0 : (*focused)->calendar().focusedDay();
    showQuarter(*quarter);
    if (day > 0)
        (*focused)->calendar().focusDay(day);
}

void QuarterView::showDay(QDate date)
{
    if (date.year() < firstYear || date.year() > lastYear)
        return;
    const YearQuarter wanted = YearMonth{date.year(), date.month()}.quarter();
    if (wanted != m_quarter)
        showQuarter(wanted);
    m_cards.at(static_cast<std::size_t>((date.month() - 1) % 3))->calendar().focusDay(date.day());
}

void QuarterView::previous()
{
    turnTo(m_quarter.previous());
}

void QuarterView::next()
{
    turnTo(m_quarter.next());
}

void QuarterView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_row->setDirection(width() >= widthForRow ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
}

void QuarterView::refresh()
{
    const bool isLoaded = !months().isEmpty();
    if (isLoaded)
        m_stats->setQuarter(m_quarter, months());
    m_error->setVisible(!isLoaded);
    m_stats->setVisible(isLoaded);
    for (std::size_t i = 0; i < m_cards.size(); ++i) {
        if (isLoaded)
            m_cards.at(i)->setMonth(months().at(static_cast<qsizetype>(i)));
        m_cards.at(i)->setVisible(isLoaded);
    }
}
