// SPDX-License-Identifier: GPL-3.0-or-later
#include "DayMarker.h"

#include "ModelContext.h"
#include "Month.h"

namespace {

bool isOpen(DayState state)
{
    return state == DayState::UNKNOWN || state == DayState::WILL_BE_IN_OFFICE;
}

} // namespace

DayState DayMarker::stateOf(const Month& month, qsizetype index)
{
    const auto& days = month.days.value();
    if (index < 0 || index >= days.size())
        qFatal("A month has no cell %lld", static_cast<long long>(index));
    return days.at(index).state;
}

bool DayMarker::mark(Month& month, qsizetype index, DayState state, MarkedBy by)
{
    if (!isOpen(stateOf(month, index)) && by == MarkedBy::Check)
        return false;
    QList<Day> days = month.days;
    Day& day = days[index];
    day.state = state;
    if (by != MarkedBy::Menu)
        day.isWorkday = month.isWorkday(day.id);
    month.days = days;
    if (by == MarkedBy::Click)
        m_context.save();
    return true;
}
