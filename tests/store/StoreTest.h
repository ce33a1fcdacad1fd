// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Marking.h"
#include "ModelContainer.h"
#include "ModelContext.h"
#include "RecordFields.h"
#include "ReleasedStore.h"
#include "Schema.h"
#include "StoreError.h"
#include "Testing.h"

#include <QTemporaryDir>

#include <SQLiteCpp/Database.h>

#include <algorithm>

/// The changes of days that a context knows, as they are stored.
inline std::vector<Row> changes(ModelContext& context)
{
    std::vector<Row> rows;
    context.visitChanges([&rows](const DayChange& change) {
        rows.push_back(dayChangeFields().row(change));
        return true;
    });
    std::ranges::sort(rows);
    return rows;
}

/// The records of the given kinds, as they are stored.
template <class... Record> std::vector<Row> rowsOf(ModelContext& context)
{
    std::vector<Row> rows;
    const auto add = [&rows](const auto& fields, const auto& records) {
        for (const auto& record : records)
            rows.push_back(fields.row(record));
    };
    (add(fieldsOf<Record>(), context.records<Record>()), ...);
    return rows;
}

/// Every record of the kinds that are few.
inline std::vector<Row> smallRecords(ModelContext& context)
{
    return rowsOf<AbsenceKind, DayAbsence, DayOff, HolidayRegion, WorkWeek, CountingChoices, UsualWeek, AttendanceRule>(
        context);
}

/// Every other record that a context knows, as it is stored.
inline std::vector<Row> records(ModelContext& context)
{
    std::vector<Row> rows;
    const auto add = [&rows](const auto& fields, const auto& records) {
        for (const auto& record : records)
            rows.push_back(fields.row(*record));
    };
    add(monthFields(), context.fetchMonths());
    add(goalFields(), context.fetchGoals());
    add(settingsFields(), context.fetchSettings());
    add(dayNoteFields(), context.fetchNotes(QDate(1, 1, 1), QDate(9999, 12, 31)));
    std::ranges::copy(smallRecords(context), std::back_inserter(rows));
    std::ranges::sort(rows);
    return rows;
}

/// Everything that a context knows, as it is stored.
inline std::vector<Row> contents(ModelContext& context)
{
    auto rows = records(context);
    std::ranges::copy(changes(context), std::back_inserter(rows));
    return rows;
}

/// A change that is not stored yet.
inline DayChange exampleChange()
{
    return {.time = -1,
            .date = {2026, 3, 31},
            .after = DayState::IN_OFFICE,
            .by = ChangedBy::Check,
            .group = 1LL << 40,
            .network = u"Büro 5G"_s,
            .absenceBefore = AbsenceKind::sick,
            .absenceAfter = AbsenceKind::firstOwn};
}

/// Adds a record of each kind that is few.
inline void addSmallRecords(ModelContext& context)
{
    context.add(AbsenceKind{AbsenceKind::firstOwn, u"Jury"_s, Treatment::LeftOut});
    context.add(DayAbsence{{2026, 3, 31}, AbsenceKind::firstOwn});
    context.add(DayOff{{2026, 4, 3}, u"Karfreitag"_s, DayOffSource::Holidays});
    context.add(HolidayRegion{u"DE-BY"_s, 2027});
    context.add(WorkWeek{{2026, 5, 1}, Weekdays(0b1111)});
    context.add(CountingChoices{true});
    context.add(UsualWeek{Weekdays(0b10), true});
    context.add(
        AttendanceRule{.id = QUuid(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11), .name = u"Team"_s, .from = QDate(2026, 1, 1)});
}

/// A store in a folder of its own.
class StoreTest : public testing::Test {
protected:
    [[nodiscard]] std::unique_ptr<ModelContainer> open(const Schema& schema = pellorySchema(),
                                                       int lockTimeout = 5000) const
    {
        return std::make_unique<ModelContainer>(ModelConfiguration{u"Example"_s, path, lockTimeout}, schema);
    }

    /// Why the store does not open; empty if it does.
    [[nodiscard]] std::string refusal(const Schema& schema = pellorySchema(), int lockTimeout = 5000) const
    {
        try {
            static_cast<void>(open(schema, lockTimeout));
            return {};
        } catch (const StoreError& error) {
            return error.description().toStdString();
        }
    }

    [[nodiscard]] std::vector<Row> stored() const { return contents(open()->mainContext()); }

    /// A connection beside the store's own.
    [[nodiscard]] SQLite::Database connection() const { return {path.toStdString(), SQLite::OPEN_READWRITE}; }

    /// Of the store, or of a file beside it.
    [[nodiscard]] QByteArray bytes(const QString& suffix = {}) const
    {
        QFile file(path + suffix);
        EXPECT_TRUE(file.open(QFile::ReadOnly));
        return file.readAll();
    }

    void setBytes(const QByteArray& data, const QString& suffix = {}) const
    {
        QFile file(path + suffix);
        EXPECT_TRUE(file.open(QFile::WriteOnly) && file.write(data) == data.size());
    }

    void setFolderWritable(bool isWritable) const
    {
        QFile::setPermissions(folder.path(), isWritable ? QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner
                                                        : QFile::ReadOwner | QFile::ExeOwner);
    }

    /// Puts the store of a released program, of version 1 or 2, in the place of whatever is there.
    void putReleased(int version = 1) const
    {
        QFile::remove(path);
        SQLite::Database database(path.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
        database.exec(releasedStore);
        if (version > 1)
            database.exec(releasedAdditions);
        if (version > 2)
            database.exec(releasedCounting);
    }

    /// The same, as this program writes it, with a record of each newer kind.
    void putSample() const
    {
        static QByteArray sample;
        if (!sample.isEmpty())
            return setBytes(sample);
        putReleased();
        {
            const auto container = open();
            container->mainContext().append(exampleChange());
            const auto note = std::make_shared<DayNote>(QDate(2026, 3, 31));
            note->text = u"café 'x'\n"_s;
            container->mainContext().insert(note);
            addSmallRecords(container->mainContext());
        }
        sample = bytes();
        QFile::remove(path + u".before-4"_s);
    }

    [[nodiscard]] QStringList files() const { return QDir(folder.path()).entryList(QDir::Files, QDir::Name); }

    const QTemporaryDir folder{inMemory};
    const QString path = folder.filePath(u"Pellory.store"_s);
};
