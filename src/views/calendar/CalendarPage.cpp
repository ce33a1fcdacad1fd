// SPDX-License-Identifier: GPL-3.0-or-later
#include "CalendarPage.h"

#include "StoreError.h"
#include "StoredMonths.h"

#include <QKeyEvent>

CalendarPage::CalendarPage(ModelContext& context, QWidget* parent)
    : QWidget(parent)
    , m_context(context)
{
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

void CalendarPage::loadQuarter(const YearQuarter& quarter)
{
    try {
        m_months = quarterMonths(m_context, quarter);
    } catch (const StoreError&) {
        m_months.clear();
    }
}
