// SPDX-License-Identifier: GPL-3.0-or-later
#include "QuarterView.h"

#include "Clock.h"
#include "MonthCard.h"
#include "NavigationRow.h"
#include "QuarterStatsView.h"

#include <QVBoxLayout>

namespace {

constexpr int monthsOfQuarter = 3;

} // namespace

QuarterView::QuarterView(const CalendarParts& parts, QWidget* parent)
    : GridPage(parts, parent)
    , m_row(new QBoxLayout(QBoxLayout::TopToBottom))
{
    auto* navigation = new NavigationRow(tr("Last Quarter"), tr("Next Quarter"));
    m_stats = new QuarterStatsView(parts, navigation);
    connectNavigation(*navigation);
    connectTracker(*m_stats);
    for (int i = 0; i < monthsOfQuarter; ++i) {
        auto* card = new MonthCard(parts);
        m_row->addWidget(card);
        connectCard(*card);
    }
    m_row->setSpacing(contents().spacing());
    contents().addWidget(m_stats, 0, Qt::AlignHCenter);
    contents().addLayout(m_row);
    contents().setAlignment(m_row, Qt::AlignHCenter);
    const QDate today = parts.clock.today();
    showPeriod({today.year(), today.month()});
}

QSize QuarterView::minimumSizeHint() const
{
    const QMargins margins = layout()->contentsMargins();
    return {Card::contentWidth(font()) + margins.left() + margins.right(), QWidget::minimumSizeHint().height()};
}

void QuarterView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    const int room = (layout()->contentsRect().width() - (monthsOfQuarter - 1) * m_row->spacing()) / monthsOfQuarter;
    const bool isRow = room >= Card::leastContentWidth(font());
    const int cardWidth = qMin(Card::contentWidth(font()), isRow ? room : Card::contentWidth(font()));
    m_row->setDirection(isRow ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    for (auto* card : findChildren<TrackerCard*>())
        card->setFixedWidth(cardWidth);
}

void QuarterView::showQuarter(const QList<std::shared_ptr<Month>>& months)
{
    m_stats->setQuarter(month().quarter(), months);
}
