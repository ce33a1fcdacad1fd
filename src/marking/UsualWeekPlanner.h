// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DaySpan.h"
#include "Period.h"

#include <QList>

#include <memory>

class Clock;
class CountingRecords;
class DayMarker;
class ModelContext;
class Month;

/// Plans the days on which a person usually comes: unknown workdays from today on.
class UsualWeekPlanner {
public:
    UsualWeekPlanner(DayMarker& marker, const CountingRecords& counting, const Clock& clock)
        : m_marker(marker)
        , m_counting(counting)
        , m_clock(clock)
    {
    }

    /// Plans those days of a span, as one undo step. Returns how many there are. Throws a StoreError, and changes
    /// nothing, if the store cannot be read.
    qsizetype plan(DaySpan span);

    /// Do what the functions in StoredMonths do. The months that they create are planned, as one undo step, if the
    /// person wants that.
    [[nodiscard]] std::shared_ptr<Month> findOrCreateMonth(ModelContext& context, QDate date);
    [[nodiscard]] QList<std::shared_ptr<Month>> quarterMonths(ModelContext& context, const YearQuarter& quarter);

private:
    /// Of these months, those to plan once they are created.
    [[nodiscard]] QList<DaySpan> newMonths(ModelContext& context, const QList<YearMonth>& months) const;
    void planNew(const QList<DaySpan>& months);
    [[nodiscard]] QList<QDate> daysIn(DaySpan span) const;
    void mark(const QList<QDate>& days);

    DayMarker& m_marker;
    const CountingRecords& m_counting;
    const Clock& m_clock;
};
