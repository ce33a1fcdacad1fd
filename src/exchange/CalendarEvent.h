// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CalendarLines.h"

#include <QDate>
#include <QList>

/// An event of an iCalendar file.
class CalendarEvent {
public:
    /// `line` is where it begins.
    explicit CalendarEvent(int line);

    /// Takes over a property of the event. The first that cannot be understood is the event's problem.
    void read(const CalendarLine& line);
    /// Has no effect if there is a problem already.
    void refuse(const QString& problem);

    [[nodiscard]] bool isCancelled() const { return m_isCancelled; }
    /// Why the event cannot be taken over, in a sentence for the person. Empty if it can.
    [[nodiscard]] QString problem() const;
    /// May be empty.
    [[nodiscard]] QString summary() const { return m_summary; }
    /// In no order. An event that recurs each year has those of ten years from `firstYear`.
    [[nodiscard]] QList<QDate> dates(int firstYear) const;

private:
    void readStart(const CalendarLine& line);
    void readEnd(const CalendarLine& line);
    void readDuration(const CalendarLine& line);
    void readRecurrence(const CalendarLine& line);
    void readExceptions(const CalendarLine& line);
    [[nodiscard]] QDate dateOf(const CalendarLine& line);
    [[nodiscard]] QString reason() const;
    [[nodiscard]] qint64 length() const;
    [[nodiscard]] QList<QDate> starts(int firstYear) const;

    int m_line;
    QString m_summary;
    QString m_problem;
    QDate m_start;
    QDate m_end;
    std::optional<qint64> m_days;
    QList<QDate> m_exceptions;
    bool m_isYearly = false;
    bool m_isCancelled = false;
};
