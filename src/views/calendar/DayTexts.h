// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Counting.h"
#include "Day.h"

#include <QCoreApplication>

class CountingRecords;

/// What is said of the days of a month beside their states: why one was out of office, and that one is a day off.
class DayTexts {
    Q_DECLARE_TR_FUNCTIONS(DayTexts)

public:
    /// The days of a stored month, as they count now.
    explicit DayTexts(const CountingRecords& records);
    /// The days of a sample, which have a state and nothing else.
    DayTexts() = default;

    [[nodiscard]] const Counting& counting() const { return m_counting; }
    /// The day as it is coloured: `isWorkday` is what counts now, which may differ from what is stored.
    [[nodiscard]] Day colored(Day day, QDate date) const;
    /// "Out of Office (Sick)"
    [[nodiscard]] QString state(QDate date, DayState state) const;
    /// "Unknown · Christmas Day"
    [[nodiscard]] QString onHover(QDate date, DayState state) const;
    /// "Friday 25 December 2026, Unknown, Day Off: Christmas Day"
    [[nodiscard]] QString spoken(QDate date, DayState state) const;

private:
    const CountingRecords* m_records = nullptr;
    Counting m_counting;
};
