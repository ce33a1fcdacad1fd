// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CalendarParts.h"
#include "DaySpan.h"
#include "Period.h"
#include "Popover.h"
#include "Retry.h"

#include <QDate>
#include <QWidget>

#include <optional>

class NavigationRow;
class QLabel;
class QMenu;
class QVBoxLayout;
class TrackerCard;

/// The keys that lead back to today.
inline constexpr QKeyCombination todayKeys = Qt::CTRL | Qt::Key_Home;
/// The keys that take back the last change, and bring it back. The desktop may have others for the same.
inline constexpr QKeyCombination undoKeys = Qt::CTRL | Qt::Key_Z;
inline constexpr QKeyCombination redoKeys = Qt::CTRL | Qt::SHIFT | Qt::Key_Z;

/// A period of the calendar, which can be turned like a page.
class CalendarPage : public QWidget {
    Q_OBJECT

public:
    /// The error text takes the place of the contents while the store cannot be read.
    CalendarPage(const CalendarParts& parts, const QString& errorText, QWidget* parent);

    /// Both do nothing at the end of the calendar.
    void previous(Qt::FocusReason reason = Qt::ShortcutFocusReason);
    void next(Qt::FocusReason reason = Qt::ShortcutFocusReason);
    /// Shows the period that a month belongs to.
    void showPeriod(const YearMonth& month);
    /// Turns to a day and gives it the focus. A day outside the calendar is ignored.
    void showDay(QDate date, Qt::FocusReason reason = Qt::TabFocusReason);
    void showToday(Qt::FocusReason reason);
    /// Gives the focus to what had it last, or to today, or else to the first day. Without days nothing gets it.
    void focusCurrentDay(Qt::FocusReason reason);

    /// Adds the entries for the period to the menu of the window.
    virtual void addEntries(QMenu& menu);

    /// A month of the period, the first after a turn.
    [[nodiscard]] YearMonth month() const { return m_month; }
    /// The days of the period.
    [[nodiscard]] virtual DaySpan span() const = 0;
    [[nodiscard]] bool isShown(QDate date) const { return span().contains(date); }
    /// The day that has the keyboard focus, invalid if none has.
    [[nodiscard]] virtual QDate focusedDate() const = 0;

Q_SIGNALS:
    /// A record of these days is to be saved.
    void recordRequested(DaySpan span);
    /// Emitted with a new popover, for the window to open in its own way.
    void popoverRequested(Popover* popover);

protected:
    [[nodiscard]] const CalendarParts& parts() const { return m_parts; }
    [[nodiscard]] QDate today() const { return m_today; }
    /// Adds the parts of the page, from top to bottom. They are hidden while the store cannot be read.
    [[nodiscard]] QVBoxLayout& contents() { return *m_column; }
    /// Makes the buttons turn the page.
    void connectNavigation(NavigationRow& navigation);
    /// False while the store cannot be read.
    [[nodiscard]] bool isLoaded() const { return !m_contents->isHidden(); }

    /// Reads and shows the period of month(). Throws a StoreError if the store cannot be read.
    virtual void load() = 0;
    /// Names what is shown.
    [[nodiscard]] virtual QString title() const = 0;
    /// A month of the periods beside this one; none at the ends of the calendar.
    [[nodiscard]] virtual std::optional<YearMonth> monthBefore() const = 0;
    [[nodiscard]] virtual std::optional<YearMonth> monthAfter() const = 0;
    /// As showPeriod(), after a key or a click.
    virtual void turnTo(const YearMonth& month, Qt::FocusReason reason);
    /// Both are called only while the contents are shown, the first one for a day of the period.
    virtual void focusDay(QDate date, Qt::FocusReason reason) = 0;
    virtual void focusCurrent(Qt::FocusReason reason) = 0;

    void keyPressEvent(QKeyEvent* event) override;

private:
    void turn(const std::optional<YearMonth>& month, Qt::FocusReason reason);
    [[nodiscard]] bool tryToLoad();
    void followToday();

    CalendarParts m_parts;
    QDate m_today;
    YearMonth m_month;
    NavigationRow* m_navigation = nullptr;
    Retry m_retry{[this] { showPeriod(m_month); }};
    QLabel* m_error;
    QWidget* m_contents;
    QVBoxLayout* m_column;
};
