// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QWidget>

/// A period of the calendar that can be turned like a page, also with Page Up and Page Down.
class CalendarPage : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// Both do nothing at the end of the calendar. A day that has the focus passes it to the same day of the new page.
    virtual void previous() = 0;
    virtual void next() = 0;
    /// Turns to a day and gives it the focus. A day outside the calendar is ignored.
    virtual void showDay(QDate date) = 0;

protected:
    void keyPressEvent(QKeyEvent* event) override;
};
