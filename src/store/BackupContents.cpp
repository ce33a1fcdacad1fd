// SPDX-License-Identifier: GPL-3.0-or-later
#include "BackupContents.h"

#include "BackupCopy.h"
#include "Connection.h"
#include "Month.h"
#include "RecordFields.h"
#include "RecordTable.h"
#include "Schema.h"
#include "StoreError.h"
#include "Verification.h"

#include <QFile>
#include <QSet>

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

#include <algorithm>
#include <functional>

namespace {

template <class T> T valueOf(const Row& row, const TableLayout& table, const char* column)
{
    const auto found = std::ranges::find(table.columns, column, &Column::name);
    return fromStored<T>(row.at(static_cast<std::size_t>(found - table.columns.begin())));
}

void add(DayStates& states, QSet<QDate>& months, int year, int month, const QList<Day>& days)
{
    const QDate first(year, month, 1);
    if (!first.isValid() || months.contains(first))
        return;
    months.insert(first);
    for (const Day& day : days) {
        const QDate date(year, month, static_cast<int>(day.id));
        if (day.isInMonth() && date.isValid())
            states[date] = {day.state};
    }
}

void readRows(SQLite::Database& database, const TableLayout& table, const std::function<void(const Row&)>& take)
{
    SQLite::Statement rows(database, table.selectSql());
    while (rows.executeStep())
        take(readRow(rows, table));
}

void addAbsences(DayStates& states, SQLite::Database& database, const Schema& schema)
{
    const auto table = std::ranges::find(schema.tables, fieldsOf<DayAbsence>().table, &TableLayout::name);
    for (StoredDay& day : states) {
        if (table == schema.tables.end() && day.state == DayState::OUT_OF_OFFICE)
            day.absenceKind.reset();
    }
    if (table == schema.tables.end())
        return;
    readRows(database, *table, [&](const Row& row) {
        const auto day = states.find(valueOf<QDate>(row, *table, "date"));
        if (day != states.end() && day->state == DayState::OUT_OF_OFFICE)
            day->absenceKind = valueOf<int>(row, *table, "kind");
    });
}

DayStates readDays(SQLite::Database& database, const Schema& schema)
{
    DayStates states;
    QSet<QDate> months;
    const TableLayout& table = *std::ranges::find(schema.tables, monthFields().table, &TableLayout::name);
    readRows(database, table, [&](const Row& row) {
        add(states, months, valueOf<int>(row, table, "year"), valueOf<int>(row, table, "month"),
            valueOf<QList<Day>>(row, table, "days"));
    });
    addAbsences(states, database, schema);
    return states;
}

// Rows that are sound one by one can still lack another one.
void verifySettings(SQLite::Database& database)
{
    RecordTable<Goal> goals(database, goalFields(), [] {});
    RecordTable<AppSettings> settings(database, settingsFields([&] { return goals.fetch({}); }), [] {});
    static_cast<void>(settings.fetch({}));
}

// The connection does not write, so it accepts a header that a store must not have.
void verifyHeader(const QString& path)
{
    QFile file(path);
    constexpr int versions = 18; // for writing and for reading
    if (!file.open(QFile::ReadOnly) || !file.seek(versions) || file.read(2) != QByteArray(2, 1))
        throw StoreError(StoreError::tr("The data store is damaged: its header does not allow writing."));
}

} // namespace

DayStates readStore(const QString& path, const std::stop_token& stop)
{
    DayStates states;
    try {
        readUnlocked(
            path, [&](SQLite::Database& store) { states = readDays(store, pellorySchema()); }, stop);
    } catch (const SQLite::Exception& error) {
        throw storeError(error);
    }
    return states;
}

DayStates readBackup(const QString& path)
{
    verifyHeader(path);
    try {
        SQLite::Database backup = connectUnlocked(path);
        const Schema schema = pellorySchema();
        const int version = verifyStore(backup, schema);
        if (version == schema.version())
            verifySettings(backup);
        return readDays(backup, schema.atVersion(version));
    } catch (const SQLite::Exception& error) {
        throw storeError(error);
    }
}
