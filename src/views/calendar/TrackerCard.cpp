// SPDX-License-Identifier: GPL-3.0-or-later
#include "TrackerCard.h"

#include "Follow.h"
#include "ProgressWidgetView.h"
#include "ViewSettings.h"

#include <QVBoxLayout>

TrackerCard::TrackerCard(const AppSettings& settings, const ViewSettings& viewSettings, PeriodWord period,
                         const QProperty<bool>& isTrackerShown, QWidget* parent)
    : Card(parent)
    , m_above(new QVBoxLayout)
    , m_column(new QVBoxLayout(this))
    , m_tracker(new ProgressWidgetView(settings, viewSettings, period))
{
    setFixedWidth(contentWidth);
    m_column->setContentsMargins(0, 16, 0, 20);
    m_column->setSpacing(8);
    m_column->addLayout(m_above);
    m_column->addWidget(m_tracker);
    follow(isTrackerShown, this, [this, &isTrackerShown] { m_tracker->setVisible(isTrackerShown); });
}

void TrackerCard::setMonths(const QList<std::shared_ptr<Month>>& months)
{
    m_tracker->setMonths(months);
}

void TrackerCard::addAboveTracker(QWidget* widget, Qt::Alignment alignment)
{
    m_above->addWidget(widget, 0, alignment);
}

void TrackerCard::addBelowTracker(QWidget* widget)
{
    m_column->addWidget(widget);
}
