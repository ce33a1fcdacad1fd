// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CalendarParts.h"
#include "DayEditor.h"
#include "DaySpan.h"
#include "EdgeScroll.h"
#include "Popover.h"

#include <QObject>
#include <QPoint>

#include <vector>

class CalendarPage;
class CalendarView;
class CommandClickableButton;
class QKeyEvent;
class QMouseEvent;

/// The days of a page that a person selects, by dragging over them or with Shift and the keys that move between days,
/// to set all of them at once. It is a run of days, which may reach beyond those that the page shows.
class DaySelection : public QObject {
    Q_OBJECT

public:
    DaySelection(const CalendarParts& parts, CalendarPage& page);

    /// Lets days of a grid be selected.
    void watch(CalendarView& calendar);
    /// Must be called when the page has turned, which drops the selection unless it was turned to extend it.
    void followTurn();

Q_SIGNALS:
    /// Emitted with a new popover, for the window to open in its own way.
    void popoverRequested(Popover* popover);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Drag {
        /// Where the button was pressed; invalid if it is not.
        QDate from;
        QPoint place;
        /// Whether the pointer has left that day.
        bool isMoving = false;
        /// Where the pointer is now.
        QPoint pointer = {};
    };

    [[nodiscard]] bool isEmpty() const { return m_anchor == m_end; }
    [[nodiscard]] DaySpan span() const;
    void select(QDate anchor, QDate end);
    void drop();
    void extendTo(QDate date);
    void selectMonth();
    void openMenu(QWidget& cell);

    void startDrag(QDate date, const QMouseEvent& event);
    void continueDrag(CommandClickableButton& pressed, const QMouseEvent& event);
    void dragTo(QDate date);
    void endDrag(const QMouseEvent& event);
    [[nodiscard]] bool handleKey(CommandClickableButton& cell, const QKeyEvent& event);
    [[nodiscard]] bool handleKeyOfSelection(CommandClickableButton& cell, const QKeyEvent& event);
    [[nodiscard]] bool handleRelease(CommandClickableButton& cell, const QKeyEvent& event);
    [[nodiscard]] bool handleMenuRequest(CommandClickableButton& cell);
    /// The day to which a key moves from another; invalid for other keys.
    [[nodiscard]] QDate targetOf(int key, QDate from) const;
    [[nodiscard]] QDate dateNear(const QPoint& place) const;
    [[nodiscard]] static QDate dateOf(const CommandClickableButton& cell);
    void followFocus(const QWidget* focused);

    CalendarParts m_parts;
    DayEditor m_editor;
    CalendarPage& m_page;
    std::vector<CalendarView*> m_calendars;
    /// The day at which the selection began, and the one that moves. They are the same while nothing is selected.
    QDate m_anchor;
    QDate m_end;
    Drag m_drag;
    EdgeScroll m_scroll;
    bool m_isExtending = false;
    /// The key that is down and opens the menu when it is released.
    int m_menuKey = 0;
};
