// SPDX-License-Identifier: GPL-3.0-or-later
#include "ReturnKey.h"

#include <QAbstractButton>
#include <QKeyEvent>

bool isReturn(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

bool clickByReturn(QAbstractButton& button, const QKeyEvent& event)
{
    if (!isReturn(event))
        return false;
    if (!event.isAutoRepeat())
        button.click();
    return true;
}
