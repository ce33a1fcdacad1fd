// SPDX-License-Identifier: GPL-3.0-or-later
#include "CalendarPage.h"

#include <QKeyEvent>

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
