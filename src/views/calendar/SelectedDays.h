// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QDate>
#include <QList>

class Counting;
struct DaySpan;

/// The days of a span that are set together: its workdays, or all of them if none is a workday.
class SelectedDays {
    Q_DECLARE_TR_FUNCTIONS(SelectedDays)

public:
    SelectedDays(const DaySpan& span, const Counting& counting);

    [[nodiscard]] const QList<QDate>& dates() const { return m_dates; }
    /// The heading of a menu, such as "Set 5 Workdays".
    [[nodiscard]] QString heading() const;
    /// Says how many there are.
    [[nodiscard]] QString spoken() const;

private:
    QList<QDate> m_dates;
    bool m_areWorkdays = false;
};
