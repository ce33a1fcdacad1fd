// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CalendarEvent.h"
#include "CalendarFile.h"

#include <QMap>

/// Collects the days off of an iCalendar file from its lines.
class CalendarReader {
public:
    explicit CalendarReader(QDate today);

    /// To be called once. Throws a CalendarFileError.
    [[nodiscard]] CalendarFileContents read(const QByteArray& text);

private:
    void readLine(const CalendarLine& line);
    void begin(const CalendarLine& line);
    void end(const QString& component);
    void endEvent();
    void refuseUnfinishedEvent();
    void addDays(const CalendarEvent& event);
    void addProblem(const QString& problem);
    [[nodiscard]] CalendarFileContents contents() const;

    QDate m_today;
    bool m_isOpen = false;
    std::optional<CalendarEvent> m_event;
    /// What has begun in the event, such as its alarm.
    QStringList m_nested;
    QMap<QDate, QStringList> m_names;
    qsizetype m_days = 0;
    QStringList m_problems;
    int m_furtherProblems = 0;
};
