// SPDX-License-Identifier: GPL-3.0-or-later
#include "QuarterView.h"

#include "Clock.h"
#include "MonthCard.h"
#include "NavigationRow.h"
#include "QuarterStatsView.h"

#include <QVBoxLayout>

namespace {

constexpr int monthsOfQuarter = 3;
constexpr int margin = 24;
constexpr int spacing = 16;
constexpr int widthForRow = 3 * Card::contentWidth + 2 * spacing + 2 * margin;

} // namespace

QuarterView::QuarterView(ModelContext& context, const AppSettings& settings, const ViewSettings& viewSettings,
                         const Clock& clock, QWidget* parent)
    : CalendarPage(context, clock, parent)
    , m_row(new QBoxLayout(QBoxLayout::TopToBottom))
{
    auto* navigation = new NavigationRow(tr("Last Quarter"), tr("Next Quarter"));
    m_stats = new QuarterStatsView(settings, viewSettings, clock, navigation);
    connectNavigation(*navigation);
    contents().addWidget(m_stats, 0, Qt::AlignHCenter);
    contents().addLayout(m_row);
    m_row->setSpacing(spacing);
    for (int i = 0; i < monthsOfQuarter; ++i) {
        auto* card = new MonthCard(context, settings, viewSettings, clock);
        m_row->addWidget(card, 0, Qt::AlignHCenter);
        connectCard(*card);
    }
    const QDate today = clock.today();
    showPeriod({today.year(), today.month()});
}

QSize QuarterView::minimumSizeHint() const
{
    return {Card::contentWidth + 2 * margin, QWidget::minimumSizeHint().height()};
}

void QuarterView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_row->setDirection(width() >= widthForRow ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
}

void QuarterView::showQuarter(const QList<std::shared_ptr<Month>>& months)
{
    m_stats->setQuarter(month().quarter(), months);
}
