// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CalendarParts.h"
#include "Plan.h"
#include "PlanSubject.h"
#include "Popover.h"

class Button;
class MarkedTextLabel;
class Page;
class PlanGrid;
class PlanHead;
class QLabel;
class QVBoxLayout;
class RuleLine;

/// What is needed for goals or a rule, with the weeks that are left, in which days can be tried. Nothing is stored
/// before "Apply".
class PlanPopover : public Popover {
    Q_OBJECT

public:
    PlanPopover(const CalendarParts& parts, PlanSubject subject, QWidget* anchor);

protected:
    bool focusNextPrevChild(bool next) override;

private:
    void addTitle();
    void addPace();
    void addGrid();
    void addButtons();
    void limitGrid();
    void refresh();
    void showLines(const QList<PlanSubject::Line>& lines);
    void showWeeks(const QList<PlanWeek>& weeks, const CountedDays& days);
    void tryDay(QDate date);
    void fillUsualWeek();
    void apply();
    [[nodiscard]] CountedDays daysWith(const TriedStates& tried) const;
    [[nodiscard]] DayState storedState(QDate date) const;
    [[nodiscard]] bool canBeTried(QDate date) const;
    /// The usual days that are not planned or tried yet.
    [[nodiscard]] QList<QDate> usualDaysLeft() const;

    CalendarParts m_parts;
    PlanSubject m_subject;
    /// As they are stored.
    CountedDays m_stored;
    TriedStates m_tried;
    QVBoxLayout* m_lineColumn;
    QList<RuleLine*> m_lines;
    MarkedTextLabel* m_pace;
    PlanGrid* m_grid = nullptr;
    PlanHead* m_head = nullptr;
    Page* m_weeks = nullptr;
    QLabel* m_problem;
    /// Nothing while there is no usual week.
    Button* m_fill = nullptr;
    Button* m_apply = nullptr;
};
