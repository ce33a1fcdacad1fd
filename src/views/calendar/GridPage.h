// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CalendarPage.h"

#include <memory>
#include <vector>

class CalendarView;
class DaySelection;
class Month;
class MonthCard;
class TrackerCard;

/// A month or a quarter, with the grids in which days are marked. To show it stores the months of its quarter that are
/// not stored yet. When it turns, a day that has the focus passes it to the same day of the new page.
class GridPage : public CalendarPage {
    Q_OBJECT

public:
    GridPage(const CalendarParts& parts, QWidget* parent);
    ~GridPage() override;

    [[nodiscard]] DaySpan span() const override;
    [[nodiscard]] QDate focusedDate() const override;

    void addEntries(QMenu& menu) override;

Q_SIGNALS:
    // As CalendarView emits it.
    void detailsRequested(const std::shared_ptr<Month>& month, qsizetype index, QWidget* cell);
    /// Something is to be said in a line.
    void messageRequested(const QString& text);
    /// There is no usual week yet; the person wants to choose it.
    void usualWeekRequested();

protected:
    /// Makes a card show a month of the page: the only one, or the next of a quarter.
    void connectCard(MonthCard& card);
    /// Lets the days of a tracker be planned.
    void connectTracker(TrackerCard& tracker);

    /// Passes the months of the quarter to the other parts, whenever a period is shown.
    virtual void showQuarter(const QList<std::shared_ptr<Month>>& months) = 0;

    void load() override;
    [[nodiscard]] QString title() const override;
    [[nodiscard]] std::optional<YearMonth> monthBefore() const override;
    [[nodiscard]] std::optional<YearMonth> monthAfter() const override;
    void turnTo(const YearMonth& month, Qt::FocusReason reason) override;
    void focusDay(QDate date, Qt::FocusReason reason) override;
    void focusCurrent(Qt::FocusReason reason) override;

private:
    [[nodiscard]] bool isQuarter() const { return m_cards.size() > 1; }
    /// The grid of a day that is shown.
    [[nodiscard]] CalendarView& calendarOf(QDate date) const;
    [[nodiscard]] CalendarView* focusedCalendar() const;
    void planUsualWeek();

    std::vector<MonthCard*> m_cards;
    std::unique_ptr<DaySelection> m_selection;
    /// The day that the last turn gave the focus, and the one that it would have if the month were long enough.
    int m_reachedDay = 0;
    int m_wantedDay = 0;
};
