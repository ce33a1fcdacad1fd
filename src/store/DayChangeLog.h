// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DayChange.h"
#include "Field.h"

#include <QList>

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

#include <optional>

/// The changes of days as they are stored. Changes are only added, and read when they are asked for. A row that is
/// damaged is passed over, with a line in the log. Functions that read throw the database's own exception.
class DayChangeLog {
public:
    /// Returns whether to continue.
    using Visitor = std::function<bool(const DayChange&)>;

    explicit DayChangeLog(SQLite::Database& database);

    /// Adds a change, which the next write() stores.
    void append(const DayChange& change) { m_pending.append(change); }

    /// Visits every change, the newest first.
    void forEachBackward(const Visitor& visit) const;
    /// Visits the changes of one day, the newest first.
    void forEachBackward(QDate date, const Visitor& visit) const;

    /// Of the changes before a time, in milliseconds since 1970, keeps only the last of each day. Returns how many were
    /// deleted.
    int thin(qint64 before);

    [[nodiscard]] bool hasChanges() const { return !m_pending.isEmpty(); }
    /// Must be called in a transaction, and followed by markSaved() after its commit.
    void write();
    void markSaved() { m_pending.clear(); }
    /// Releases the connection, so that it can be replaced.
    void release() { m_insertion.reset(); }

private:
    bool visitPending(QDate date, const Visitor& visit) const;
    void visitStored(SQLite::Statement& rows, const Visitor& visit) const;
    /// Null if the row is damaged.
    [[nodiscard]] std::shared_ptr<DayChange> read(SQLite::Statement& rows) const;

    SQLite::Database& m_database;
    RecordFields<DayChange> m_fields;
    TableLayout m_layout;
    QList<DayChange> m_pending;
    std::optional<SQLite::Statement> m_insertion;
};
