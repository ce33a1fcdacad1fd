// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DayMarker.h"

#include <QElapsedTimer>

#include <functional>

class CalendarPage;
class Clock;
class FootLine;
class QStackedWidget;
class UndoHistory;

/// Says what was changed in a line at the foot of the calendar, where it can be taken back, and undoes and redoes by
/// key.
class UndoLine : public QObject {
    Q_OBJECT

public:
    /// `pages` holds the pages with the views of the calendar.
    UndoLine(DayMarker& marker, UndoHistory& history, const Clock& clock, QStackedWidget& pages);

    /// Take back the last change, or bring it back. The calendar turns to it if none of its days is shown.
    void undo();
    void redo();
    /// Says something that cannot be taken back.
    void showMessage(const QString& text);

private:
    void note(const ChangedDays& change);
    void showChanges();
    void showChangedDay();
    void revertShown();
    /// Runs an undo or a redo, and says why if it has changed nothing. `nothing` is the usual reason. Returns whether
    /// it has changed something.
    bool revert(const std::function<bool()>& action, const QString& nothing);
    void makeRoom();
    /// Whether a click through the states has ended where it began.
    [[nodiscard]] bool isAsBefore(const ChangedDays& change) const;
    /// Whether a screen reader says the change anyway, because the day has the focus.
    [[nodiscard]] bool isSaidByDay() const;
    [[nodiscard]] CalendarPage& page() const;
    [[nodiscard]] FootLine& line();

    const DayMarker& m_marker;
    UndoHistory& m_history;
    const Clock& m_clock;
    QStackedWidget& m_pages;
    FootLine* m_line = nullptr;
    /// What was changed last, in one turn of the event loop.
    QList<ChangedDays> m_changes;
    bool m_isShown = true;
    QElapsedTimer m_sinceRevert;
};
