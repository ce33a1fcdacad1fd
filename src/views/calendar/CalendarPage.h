// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Period.h"

#include <QDate>
#include <QList>
#include <QWidget>

#include <memory>

class ModelContext;
class Month;

/// A period of the calendar that can be turned like a page, also with Page Up and Page Down.
class CalendarPage : public QWidget {
    Q_OBJECT

public:
    CalendarPage(ModelContext& context, QWidget* parent);

    /// Both do nothing at the end of the calendar. A day that has the focus passes it to the same day of the new page.
    virtual void previous() = 0;
    virtual void next() = 0;
    /// Turns to a day and gives it the focus. A day outside the calendar is ignored.
    virtual void showDay(QDate date) = 0;

protected:
    void keyPressEvent(QKeyEvent* event) override;

    /// Must be called before a period is shown. Creates the months of the quarter that are not stored yet.
    void loadQuarter(const YearQuarter& quarter);
    /// The three months of the loaded quarter; empty if the store could not be read.
    [[nodiscard]] const QList<std::shared_ptr<Month>>& months() const { return m_months; }

private:
    ModelContext& m_context;
    QList<std::shared_ptr<Month>> m_months;
};
