// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DayChange.h"
#include "Retry.h"
#include "SaveState.h"
#include "StoreFileWatch.h"

#include <QList>
#include <QObject>
#include <QProperty>

#include <functional>
#include <memory>

class AppSettings;
class DayNote;
class Goal;
class Month;
class RowSet;
struct StoreTables;
template <typename Record> class RecordTable; // with "class", lupdate takes it for one

namespace SQLite {
class Database;
}

/// The records of a store. However often a record is fetched, there is one object of it. Every change of a field of a
/// fetched or inserted record reaches the store with the next save(), at the latest one at the end of the turn of the
/// event loop. A change that could not be saved is tried again by a timer, with the next save and in the destructor.
/// Nothing is written while the file is not the one that was opened, or has been changed by another program.
class ModelContext : public QObject {
    Q_OBJECT

public:
    /// Reads the settings and their goals. Throws a StoreError if it cannot.
    explicit ModelContext(SQLite::Database& database);
    ~ModelContext() override;

    /// All records of a kind, in no order. They throw a StoreError if the store cannot be read.
    [[nodiscard]] QList<std::shared_ptr<Month>> fetchMonths();
    [[nodiscard]] QList<std::shared_ptr<Goal>> fetchGoals();
    [[nodiscard]] QList<std::shared_ptr<AppSettings>> fetchSettings();

    /// The months of a year and month number: none or one, unless the store holds duplicates.
    [[nodiscard]] QList<std::shared_ptr<Month>> fetchMonths(int year, int month);
    /// The months from that of one day to that of another, in no order.
    [[nodiscard]] QList<std::shared_ptr<Month>> fetchMonths(QDate from, QDate to);
    /// The first day of all saved months that is not unknown; invalid if there is none. Throws a StoreError if the
    /// store cannot be read.
    [[nodiscard]] QDate firstMarkedDay();

    /// The notes of the days from one date to another: one a day, unless the store holds duplicates.
    [[nodiscard]] QList<std::shared_ptr<DayNote>> fetchNotes(QDate from, QDate to);

    /// Visits every change of a day, or those of one day, the newest first, until the visitor returns false. Throws a
    /// StoreError if the store cannot be read.
    using ChangeVisitor = std::function<bool(const DayChange&)>;
    void visitChanges(const ChangeVisitor& visit);
    void visitChanges(QDate date, const ChangeVisitor& visit);
    /// Adds a change of a day, for the next save.
    void append(const DayChange& change);
    /// Of the changes before a time, in milliseconds since 1970, keeps only the last of each day.
    void thinChanges(qint64 before);

    /// The records of a kind that are few and never change, such as days off, in the order in which they were added.
    /// They are read at first use. All operations throw a StoreError if the store cannot be read.
    template <class Record> [[nodiscard]] QList<Record> records();
    /// Removes what is only in `before`, and adds what is only in `after`, with the next save. False if there is
    /// nothing of either. Throws a StoreError, and changes nothing, if a record has a value that cannot be stored.
    template <class Record> bool replace(const QList<Record>& before, const QList<Record>& after);
    template <class Record> void add(const Record& record) { replace<Record>({}, {record}); }
    template <class Record> void remove(const Record& record) { replace<Record>({record}, {}); }

    /// Adds a record. Goals are added with the settings that list them, and deleted by the save of settings after which
    /// no settings list them. Inserting a removed record before the next save takes the removal back.
    void insert(const std::shared_ptr<Month>& month);
    void insert(const std::shared_ptr<AppSettings>& settings);
    void insert(const std::shared_ptr<DayNote>& note);
    /// Whether a month was fetched or inserted, and not removed.
    [[nodiscard]] bool contains(const Month& month) const;

    /// Deletes a record from the store with the next save. It is not fetched any more.
    void remove(const std::shared_ptr<Month>& month);
    void remove(const std::shared_ptr<AppSettings>& settings);
    void remove(const std::shared_ptr<DayNote>& note);

    /// Writes all changes in one transaction. True if everything is on disk; a failure is logged, leaves the store as
    /// it was, and the changes in memory.
    bool save();
    [[nodiscard]] bool hasChanges() const;

    /// Accepts the file as it is now. To be called once it is open.
    void acceptFile() { m_watch.accept(); }
    /// Looks whether the file is still ours. Every fetch and save does that first.
    bool checkFile();
    [[nodiscard]] QString filePath() const { return QString::fromStdString(m_watch.path()); }
    [[nodiscard]] const QProperty<SaveState>& saveState() const { return m_saveState; }
    /// Puts a store with the records in memory where ours was. What lies there gets another name. Other records come
    /// from the file that was opened or, if that has been overwritten, from what it contains now. False if it failed.
    bool keepRecords();

Q_SIGNALS:
    /// Changes have reached the store.
    void saved();

private:
    template <class Record>
    QList<std::shared_ptr<Record>> fetch(RecordTable<Record>& table,
                                         const typename RecordTable<Record>::Condition& condition);
    template <class Record> RowSet& rowsOf();
    void scheduleSave();
    void writeChanges();
    void reconnectIfReadOnly();
    [[nodiscard]] bool isReadable();
    void requireReadable();
    void replaceFile();
    bool report(const QString& problem);

    SQLite::Database& m_database;
    std::unique_ptr<StoreTables> m_tables;
    StoreFileWatch m_watch;
    QProperty<SaveState> m_saveState;
    Retry m_retry;
    bool m_saveScheduled = false;
};
