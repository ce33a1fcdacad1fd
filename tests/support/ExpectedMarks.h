// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ModelContext.h"
#include "Month.h"

#include <map>

using Marks = std::map<QDate, DayState>;

/// The days that are not unknown, by the records of a store. One whose kind of day is wrong stands without its date.
[[nodiscard]] inline Marks storedMarks(ModelContext& context)
{
    Marks marks;
    for (const auto& month : context.fetchMonths()) {
        for (const Day& day : month->days.value()) {
            if (day.state != DayState::UNKNOWN)
                marks[day.isWorkday == month->isWorkday(day.id) ? month->dateOf(day.id) : QDate()] = day.state;
        }
    }
    return marks;
}

/// What these days ought to be, by the rules told in the shortest way.
struct ExpectedMarks {
    /// The days that a check changes.
    QList<QDate> check(QDate today, bool isInRange, bool markPrevious)
    {
        QDate previous = today.addDays(-1);
        while (previous.dayOfWeek() > Qt::Friday)
            previous = previous.addDays(-1);
        QList<QDate> changed;
        const auto decide = [&](QDate date, DayState state) {
            if (const auto chosen = marks.find(date);
                chosen != marks.end() && chosen->second != DayState::WILL_BE_IN_OFFICE)
                return;
            marks[date] = state;
            changed.append(date);
        };
        if (isInRange)
            decide(today, DayState::IN_OFFICE);
        if (markPrevious)
            decide(previous, DayState::OUT_OF_OFFICE);
        return changed;
    }

    Marks marks;
};
