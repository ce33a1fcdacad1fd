// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QList>
#include <QObject>

#include <optional>

class Clock;
class CountingRecords;
class DayMarker;
class Month;
struct ChangedDays;

/// Finds the past workdays that were left unmarked. Days before the first that is marked do not count.
class OpenDays : public QObject {
public:
    OpenDays(DayMarker& marker, const CountingRecords& counting, const Clock& clock);

    /// The open days of a month, in order. Empty if the store cannot be read.
    [[nodiscard]] QList<QDate> in(const Month& month);

private:
    [[nodiscard]] QDate firstMarkedDay();
    void forgetFirst(const ChangedDays& change);

    DayMarker& m_marker;
    const CountingRecords& m_counting;
    const Clock& m_clock;
    /// The first marked day, invalid if there is none. Looked up when it is needed.
    std::optional<QDate> m_first;
};
