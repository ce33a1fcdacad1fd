// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CalendarHeader.h"
#include "CalendarParts.h"
#include "DayEditor.h"
#include "DaySpan.h"
#include "DayTexts.h"
#include "GridOrder.h"
#include "MonthNotes.h"
#include "Popover.h"

#include <QDate>
#include <QWidget>

#include <memory>
#include <vector>

class CommandClickableButton;
class Month;
class QGridLayout;
class WeekColumn;

/// The grid of a month, in which days are marked by hand. The arrow keys move between days.
class CalendarView : public QWidget {
    Q_OBJECT

public:
    explicit CalendarView(const CalendarParts& parts, bool highlighted = false, QWidget* parent = nullptr);
    ~CalendarView() override;

    void setMonth(const std::shared_ptr<Month>& month);
    [[nodiscard]] Month* month() const { return m_month.get(); }
    /// Gives a day the keyboard focus. Past the end of the month this is the last day.
    void focusDay(int dayOfMonth, Qt::FocusReason reason = Qt::TabFocusReason);
    /// Gives the focus to the day that Tab would reach: the one that had it last, at first today.
    void focusCurrentDay(Qt::FocusReason reason);
    /// The day that has the keyboard focus, 0 if none has.
    [[nodiscard]] int focusedDay() const;

    /// Shows which days are selected. They may be of other months too.
    void setSelected(const DaySpan& days);
    /// The cells by their places. Those that show no day are hidden.
    [[nodiscard]] const std::vector<CommandClickableButton*>& cells() const { return m_cells; }
    /// The day of a cell that shows one.
    [[nodiscard]] QDate dateOf(const CommandClickableButton& cell) const;

Q_SIGNALS:
    /// Emitted when an arrow key leads out of this month.
    void dayRequested(QDate date);
    /// Emitted when a person wants to know more about the day of a cell. A month that is not stored has no details.
    void detailsRequested(const std::shared_ptr<Month>& month, qsizetype index, QWidget* cell);
    /// Emitted with a new popover, for the window to open in its own way.
    void popoverRequested(Popover* popover);

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using Operation = void (DayEditor::*)(Month&, qsizetype);

    void addCells();
    [[nodiscard]] CommandClickableButton* makeCell(qsizetype place);
    [[nodiscard]] bool hasDetails() const;
    void showPicker(qsizetype place);
    [[nodiscard]] bool handleDayKey(const QKeyEvent& event);
    void followWeekStart();
    void followWeekNumbers();
    void refresh();
    void refreshWeeks();
    void refreshCell(qsizetype place, const DayTexts& texts, QDate today);
    [[nodiscard]] CommandClickableButton& cellOf(int dayOfMonth) const;
    /// The day of a cell, 0 or less if it shows none.
    [[nodiscard]] int dayOf(const CommandClickableButton* cell) const;
    void moveFocus(int days);
    void setTabStop(CommandClickableButton* cell);

    CalendarParts m_parts;
    DayEditor m_editor;
    MonthNotes m_notes;
    bool m_highlighted;
    std::shared_ptr<Month> m_month;
    /// Owner of the followers of the month that is shown.
    std::unique_ptr<QObject> m_monthFollowers;
    QGridLayout* m_grid;
    CalendarHeader m_header;
    GridOrder m_order;
    DaySpan m_selected;
    std::vector<CommandClickableButton*> m_cells;
    CommandClickableButton* m_tabStop = nullptr;
    /// While it is switched on.
    std::unique_ptr<WeekColumn> m_weeks;
};
