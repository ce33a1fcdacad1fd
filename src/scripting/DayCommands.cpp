// SPDX-License-Identifier: GPL-3.0-or-later
#include "DayCommands.h"

#include "CommandError.h"
#include "CountingRecords.h"
#include "DayMarker.h"
#include "DayRecords.h"
#include "DaysCsv.h"
#include "ModelContext.h"
#include "Month.h"
#include "Period.h"
#include "StoreError.h"
#include "StoredMonths.h"
#include "UndoHistory.h"

using namespace Qt::StringLiterals;

namespace {

QDate dateOf(const QString& text)
{
    const QDate date = QDate::fromString(text, u"yyyy-MM-dd"_s);
    if (!date.isValid() || date.year() < firstYear || date.year() > lastYear)
        throw CommandError(CommandError::Cause::InvalidDate,
                           DayCommands::tr("“%1” is not a date. Write it as in 2026-11-20.").arg(text));
    return date;
}

DayState stateOf(const QString& text)
{
    if (const auto state = dayStateFromRawValue(text))
        return *state;
    QStringList names;
    for (const DayState state : allDayStates)
        names.append(rawValue(state));
    throw CommandError(CommandError::Cause::InvalidState,
                       DayCommands::tr("“%1” is not a state. The states are: %2.").arg(text, names.join(", "_L1)));
}

QList<DayMark> readMarks(const WrittenMarks& marks)
{
    QList<DayMark> days;
    for (const auto& [date, state] : marks.asKeyValueRange())
        days.append({dateOf(date), stateOf(state)});
    return days;
}

} // namespace

void DayCommands::verify(const WrittenMarks& marks)
{
    static_cast<void>(readMarks(marks));
}

QVariantMap DayCommands::status() const
{
    return reading([this] {
        return attendanceStatus({m_parts.marker, m_parts.counting, m_parts.settings, m_parts.clock},
                                m_parts.weekStart());
    });
}

void DayCommands::mark(const WrittenMarks& marks)
{
    QList<DayMark> days = readMarks(marks);
    reading([&] {
        days.removeIf([this](const DayMark& day) {
            const auto month = storedMonth(m_parts.marker.context(), day.date);
            return month && m_parts.marker.markOn(*month, day.date)->state == day.state;
        });
        m_parts.marker.mark(days, ChangedBy::Hand);
    });
    requireSaved();
}

void DayCommands::undo()
{
    if (!reading([this] { return m_parts.history.undo(); }))
        throw CommandError(CommandError::Cause::NothingToUndo, tr("There is nothing to take back."));
    requireSaved();
}

QByteArray DayCommands::csv() const
{
    return reading(
        [this] { return daysCsv(dayRecords(m_parts.marker, wholeCalendar()), m_parts.counting.absenceKinds()); });
}

template <class Action> auto DayCommands::reading(Action action) const -> decltype(action())
{
    try {
        return action();
    } catch (const StoreError& error) {
        throw CommandError(CommandError::Cause::NoData, error.description());
    }
}

void DayCommands::requireSaved() const
{
    const SaveState& state = m_parts.marker.context().saveState();
    if (!state.isFine())
        throw CommandError(CommandError::Cause::NotSaved,
                           tr("The change could not be saved. %1").arg(state.problem).trimmed());
}
