// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CalendarParts.h"
#include "DaySpan.h"
#include "Period.h"
#include "Popover.h"
#include "Retry.h"

#include <QDate>
#include <QWidget>

#include <memory>
#include <vector>

class CalendarView;
class DaySelection;
class Month;
class MonthCard;
class NavigationRow;
class QLabel;
class QVBoxLayout;

/// The keys that lead back to today.
inline constexpr QKeyCombination todayKeys = Qt::CTRL | Qt::Key_Home;
/// The keys that take back the last change, and bring it back. The desktop may have others for the same.
inline constexpr QKeyCombination undoKeys = Qt::CTRL | Qt::Key_Z;
inline constexpr QKeyCombination redoKeys = Qt::CTRL | Qt::SHIFT | Qt::Key_Z;

/// A month or a quarter of the calendar, which can be turned like a page.
class CalendarPage : public QWidget {
    Q_OBJECT

public:
    CalendarPage(const CalendarParts& parts, QWidget* parent);
    ~CalendarPage() override;

    /// Both do nothing at the end of the calendar. A day that has the focus passes it to the same day of the new page.
    void previous(Qt::FocusReason reason = Qt::ShortcutFocusReason);
    void next(Qt::FocusReason reason = Qt::ShortcutFocusReason);
    /// Shows the period that a month belongs to, and stores the months of its quarter that are not stored yet.
    void showPeriod(const YearMonth& month);
    /// Turns to a day and gives it the focus. A day outside the calendar is ignored.
    void showDay(QDate date, Qt::FocusReason reason = Qt::TabFocusReason);
    void showToday(Qt::FocusReason reason);
    /// Gives the focus to the day that had it last, or to today, or else to the first. Without days nothing gets it.
    void focusCurrentDay(Qt::FocusReason reason);

    /// A month of the period, the first after a turn.
    [[nodiscard]] YearMonth month() const { return m_month; }
    /// The days of the period.
    [[nodiscard]] DaySpan span() const;
    [[nodiscard]] bool isShown(QDate date) const;
    /// The day that has the keyboard focus, invalid if none has.
    [[nodiscard]] QDate focusedDate() const;

Q_SIGNALS:
    // As CalendarView emits them.
    void detailsRequested(const std::shared_ptr<Month>& month, qsizetype index, QWidget* cell);
    void popoverRequested(Popover* popover);

protected:
    [[nodiscard]] const CalendarParts& parts() const { return m_parts; }
    /// Adds the parts of the page, from top to bottom. They are hidden while the store cannot be read.
    [[nodiscard]] QVBoxLayout& contents() { return *m_column; }
    /// Makes the buttons turn the page.
    void connectNavigation(NavigationRow& navigation);
    /// Makes a card show a month of the page: the only one, or the next of a quarter.
    void connectCard(MonthCard& card);

    /// Passes the months of the quarter to the other parts, whenever a period is shown.
    virtual void showQuarter(const QList<std::shared_ptr<Month>>& months) = 0;

    void keyPressEvent(QKeyEvent* event) override;

private:
    [[nodiscard]] bool isQuarter() const { return m_cards.size() > 1; }
    [[nodiscard]] std::optional<YearMonth> monthBefore() const;
    [[nodiscard]] std::optional<YearMonth> monthAfter() const;
    [[nodiscard]] QList<std::shared_ptr<Month>> loadQuarter() const;
    /// The grid of a day that is shown.
    [[nodiscard]] CalendarView& calendarOf(QDate date) const;
    [[nodiscard]] CalendarView* focusedCalendar() const;
    void turnTo(const std::optional<YearMonth>& month, Qt::FocusReason reason);
    void followToday();

    CalendarParts m_parts;
    QDate m_today;
    YearMonth m_month;
    std::vector<MonthCard*> m_cards;
    NavigationRow* m_navigation = nullptr;
    Retry m_retry{[this] { showPeriod(m_month); }};
    QLabel* m_error;
    QWidget* m_contents;
    QVBoxLayout* m_column;
    /// The day that the last turn gave the focus, and the one that it would have if the month were long enough.
    int m_reachedDay = 0;
    int m_wantedDay = 0;
    std::unique_ptr<DaySelection> m_selection;
};
