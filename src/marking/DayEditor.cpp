// SPDX-License-Identifier: GPL-3.0-or-later
#include "DayEditor.h"

#include "DayState.h"
#include "StoreError.h"

#include <QLoggingCategory>

#include <algorithm>

namespace {

Q_LOGGING_CATEGORY(logEditing, "pellory.marking", QtInfoMsg)

DayState next(DayState state)
{
    const auto* const found = std::ranges::find(allDayStates, state);
    return found + 1 == allDayStates.end() ? allDayStates.front() : *(found + 1);
}

} // namespace

void DayEditor::cycleDayState(Month& month, qsizetype index)
{
    m_marker.mark(month, index, next(DayMarker::stateOf(month, index)), MarkedBy::Click);
}

void DayEditor::resetDayState(Month& month, qsizetype index)
{
    m_marker.mark(month, index, DayState::UNKNOWN, MarkedBy::Click);
}

void DayEditor::toggleWillBeInOffice(Month& month, qsizetype index)
{
    toggle(month, index, DayState::WILL_BE_IN_OFFICE);
}

void DayEditor::toggleVacationDay(Month& month, qsizetype index)
{
    toggle(month, index, DayState::VACATION_DAY);
}

void DayEditor::setDayState(Month& month, qsizetype index, DayState state)
{
    m_marker.mark(month, index, state, MarkedBy::Menu);
}

void DayEditor::setDays(const QList<QDate>& dates, DayState state, int absenceKind)
{
    QList<DayMark> marks;
    for (const QDate date : dates)
        marks.append({date, state, absenceKind});
    try {
        m_marker.mark(marks, ChangedBy::Hand);
    } catch (const StoreError& error) {
        qCWarning(logEditing, "Several days cannot be set: %s", error.what());
    }
}

void DayEditor::toggle(Month& month, qsizetype index, DayState state)
{
    const bool isSet = DayMarker::stateOf(month, index) == state;
    m_marker.mark(month, index, isSet ? DayState::UNKNOWN : state, MarkedBy::Click);
}
