// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <memory>

class ModelContext;
struct Schema;

namespace SQLite {
class Database;
}

struct ModelConfiguration {
    QString name;
    /// The store file.
    QString path;
    /// How long opening waits for another program that has locked the store, in milliseconds.
    int lockTimeout = 5000;
};

/// An open data store.
class ModelContainer {
public:
    /// Opens the store, or creates it if there is none. A store of an earlier version is migrated, and a copy of it is
    /// kept beside it. Throws a StoreError that says what is wrong; an existing store is then unchanged.
    explicit ModelContainer(ModelConfiguration configuration);
    ModelContainer(ModelConfiguration configuration, const Schema& schema);
    ~ModelContainer();
    ModelContainer(const ModelContainer&) = delete;
    ModelContainer& operator=(const ModelContainer&) = delete;

    [[nodiscard]] const ModelConfiguration& configuration() const { return m_configuration; }
    /// The one context through which all records are read and written.
    [[nodiscard]] ModelContext& mainContext() { return *m_context; }

private:
    void open(const Schema& schema);

    ModelConfiguration m_configuration;
    std::unique_ptr<SQLite::Database> m_database;
    std::unique_ptr<ModelContext> m_context;
};
