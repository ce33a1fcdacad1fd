// SPDX-License-Identifier: GPL-3.0-or-later
#include "StoreTables.h"

#include "Schema.h"

#include <SQLiteCpp/Transaction.h>

#include <algorithm>

StoreTables::StoreTables(SQLite::Database& database, const std::function<void()>& changed,
                         const std::function<AppSettings::Goals()>& storedGoals)
    : months(database, monthFields(), changed)
    , goals(database, goalFields(), changed)
    , settings(database, settingsFields(storedGoals), changed)
    , notes(database, dayNoteFields(), changed)
    , changes(database)
{
    for (const TableLayout& layout : smallTables())
        small.emplace_back(database, layout, changed);
}

RowSet& StoreTables::rowsOf(const std::string& table)
{
    return *std::ranges::find(small, table, &RowSet::name);
}

// Needs no query, because all settings and goals are in memory.
void StoreTables::matchGoalsToLists()
{
    if (!settings.hasChanges())
        return;
    AppSettings::Goals listed;
    for (const auto& record : settings.inMemory())
        listed += record->daysPerWeekGoals.value();
    for (const auto& goal : listed)
        goals.insert(goal);
    for (const auto& goal : goals.inMemory()) {
        if (!listed.contains(goal))
            goals.remove(goal);
    }
}

bool StoreTables::hasChanges() const
{
    return months.hasChanges() || goals.hasChanges() || settings.hasChanges() || notes.hasChanges() ||
           changes.hasChanges() || std::ranges::any_of(small, &RowSet::hasChanges);
}

void StoreTables::write()
{
    months.write();
    goals.write();
    settings.write();
    notes.write();
    changes.write();
    std::ranges::for_each(small, &RowSet::write);
}

void StoreTables::markSaved()
{
    months.markSaved();
    goals.markSaved();
    settings.markSaved();
    notes.markSaved();
    changes.markSaved();
    std::ranges::for_each(small, &RowSet::markSaved);
}

void StoreTables::writeAll(SQLite::Database& database)
{
    matchGoalsToLists();
    SQLite::Transaction transaction(database, SQLite::TransactionBehavior::IMMEDIATE);
    database.exec("DELETE FROM goal; DELETE FROM app_settings");
    SQLite::Statement sameMonth(database, "DELETE FROM month WHERE year = ? AND month = ?");
    months.forEach([&](const Month& month) {
        sameMonth.reset();
        sameMonth.bind(1, month.year.value());
        sameMonth.bind(2, month.month.value());
        sameMonth.exec();
    });
    SQLite::Statement sameDay(database, "DELETE FROM day_note WHERE date = ?");
    notes.forEach([&](const DayNote& note) {
        sameDay.reset();
        sameDay.bind(1, std::get<std::int64_t>(toStored(note.date)));
        sameDay.exec();
    });
    months.writeAll();
    goals.writeAll();
    settings.writeAll();
    notes.writeAll();
    changes.write();
    std::ranges::for_each(small, &RowSet::writeAll);
    transaction.commit();
}

void StoreTables::markAllSaved()
{
    months.markAllSaved();
    goals.markAllSaved();
    settings.markAllSaved();
    notes.markAllSaved();
    changes.markSaved();
    std::ranges::for_each(small, &RowSet::markAllSaved);
}

void StoreTables::release()
{
    months.release();
    goals.release();
    settings.release();
    notes.release();
    changes.release();
}
