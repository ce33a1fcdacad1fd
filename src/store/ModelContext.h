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

/// The records of a store. However often a record is fetched there is one object of it, and every change of a field of
/// a fetched or inserted record reaches the store: with the next save(), and without one at the end of the turn of the
/// event loop. A change that could not be saved is tried again with the next save and when the context ends.
class ModelContext : public QObject {
public:
    /// Reads the settings and their goals. Throws a StoreError if it cannot.
    explicit ModelContext(SQLite::Database& database);
    ~ModelContext() override;

    /// All records of a kind, in no order. These throw a StoreError when the store cannot be read.
    [[nodiscard]] QList<std::shared_ptr<Month>> fetchMonths();
    [[nodiscard]] QList<std::shared_ptr<Goal>> fetchGoals();
    [[nodiscard]] QList<std::shared_ptr<AppSettings>> fetchSettings();

    /// The months of a year and month number: none or one, unless the store holds duplicates.
    [[nodiscard]] QList<std::shared_ptr<Month>> fetchMonths(int year, int month);

    void insert(const std::shared_ptr<Month>& month);
    void insert(const std::shared_ptr<Goal>& goal);
    /// Inserts the goals in its list as well.
    void insert(const std::shared_ptr<AppSettings>& settings);

    /// Writes all changes in one transaction. True when everything is on disk; a failure is logged, damages nothing
    /// that is on disk, and leaves the changes in memory.
    bool save();
    [[nodiscard]] bool hasChanges() const;

private:
    struct Tables;

    void scheduleSave();
    void insertNewGoals();
    void writeChanges();
    void reconnectIfReadOnly();

    SQLite::Database& m_database;
    std::unique_ptr<Tables> m_tables;
    bool m_saveScheduled = false;
};
