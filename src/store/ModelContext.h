// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QObject>

#include <memory>

class AppSettings;
class Goal;
class Month;

namespace SQLite {
class Database;
}

/// The records of a store. However often a record is fetched, there is one object of it. Every change of a field of a
/// fetched or inserted record reaches the store with the next save(), at the latest one at the end of the turn of the
/// event loop. A change that could not be saved is tried again with the next save and in the destructor.
class ModelContext : public QObject {
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

    /// Adds a record. Goals are added with the settings that list them, and deleted by the save of settings after which
    /// no settings list them. Inserting a removed record before the next save takes the removal back.
    void insert(const std::shared_ptr<Month>& month);
    void insert(const std::shared_ptr<AppSettings>& settings);

    /// Deletes a record from the store with the next save. It is not fetched any more.
    void remove(const std::shared_ptr<Month>& month);
    void remove(const std::shared_ptr<AppSettings>& settings);

    /// Writes all changes in one transaction. True if everything is on disk; a failure is logged, leaves the store as
    /// it was, and the changes in memory.
    bool save();
    [[nodiscard]] bool hasChanges() const;

private:
    struct Tables;

    void scheduleSave();
    void matchGoalsToLists();
    void writeChanges();
    void reconnectIfReadOnly();

    SQLite::Database& m_database;
    std::unique_ptr<Tables> m_tables;
    bool m_saveScheduled = false;
};
