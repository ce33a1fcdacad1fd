// SPDX-License-Identifier: GPL-3.0-or-later
#include "DayEditor.h"

#include "ModelContext.h"
#include "Month.h"

#include <algorithm>

namespace {

const Day& cell(const Month& month, qsizetype index)
{
    const auto& days = month.days.value();
    if (index < 0 || index >= days.size())
        qFatal("A month has no cell %lld", static_cast<long long>(index));
    return days.at(index);
}

void replace(Month& month, qsizetype index, const Day& day)
{
    QList<Day> days = month.days;
    days[index] = day;
    month.days = days;
}

DayState next(DayState state)
{
    const auto* const found = std::ranges::find(allDayStates, state);
    return found + 1 == allDayStates.end() ? allDayStates.front() : *(found + 1);
}

DayState toggled(DayState current, DayState wanted)
{
    return current == wanted ? DayState::UNKNOWN : wanted;
}

} // namespace

DayEditor::DayEditor(ModelContext& context)
    : m_context(context)
{
}

void DayEditor::cycleDayState(Month& month, qsizetype index)
{
    write(month, index, next(cell(month, index).state));
}

void DayEditor::resetDayState(Month& month, qsizetype index)
{
    write(month, index, DayState::UNKNOWN);
}

void DayEditor::toggleWillBeInOffice(Month& month, qsizetype index)
{
    write(month, index, toggled(cell(month, index).state, DayState::WILL_BE_IN_OFFICE));
}

void DayEditor::toggleVacationDay(Month& month, qsizetype index)
{
    write(month, index, toggled(cell(month, index).state, DayState::VACATION_DAY));
}

void DayEditor::setDayState(Month& month, qsizetype index, DayState state)
{
    Day day = cell(month, index);
    day.state = state;
    replace(month, index, day);
}

void DayEditor::write(Month& month, qsizetype index, DayState state)
{
    const qint64 id = cell(month, index).id;
    replace(month, index, {.id = id, .state = state, .isWorkday = month.isWorkday(id)});
    // A failed save is logged by the context and made up for by the next one.
    m_context.save();
}
