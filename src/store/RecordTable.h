// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Field.h"

#include <QList>

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

#include <optional>
#include <unordered_map>
#include <utility>

/// The records of one kind: which of them are in memory, under which key each is stored, and which have changed.
template <class Record> class RecordTable {
public:
    using RecordPtr = std::shared_ptr<Record>;

    /// Which records to fetch: in the store, and among those that are not stored yet.
    struct Condition {
        std::string where = {};
        std::vector<std::int64_t> parameters = {};
        std::function<bool(const Record&)> matches = [](const Record&) { return true; };
    };

    RecordTable(SQLite::Database& database, RecordFields<Record> fields, std::function<void()> changed)
        : m_database(database)
        , m_fields(std::move(fields))
        , m_layout(m_fields.layout())
        , m_changed(std::move(changed))
    {
    }

    [[nodiscard]] QList<RecordPtr> fetch(const Condition& condition)
    {
        QList<RecordPtr> records;
        SQLite::Statement query(m_database, m_layout.selectSql() + condition.where);
        for (std::size_t i = 0; i < condition.parameters.size(); ++i)
            query.bind(static_cast<int>(i) + 1, condition.parameters[i]);
        while (query.executeStep()) {
            const Entry* entry = stored(query);
            if (!entry->removed)
                records.append(entry->record);
        }
        for (const Entry* entry : m_dirty) {
            if (!entry->key && !entry->removed && condition.matches(*entry->record))
                records.append(entry->record);
        }
        return records;
    }

    /// The records that were fetched or inserted so far, without those that were removed.
    [[nodiscard]] QList<RecordPtr> inMemory() const
    {
        QList<RecordPtr> records;
        for (const auto& known : m_entries) {
            if (!known.second->removed)
                records.append(known.second->record);
        }
        return records;
    }

    /// Also takes back a removal.
    void insert(const RecordPtr& record)
    {
        Entry* known = find(record);
        if (known != nullptr && !known->removed)
            return;
        Entry* entry = known != nullptr ? known : follow(record);
        entry->removed = false;
        markChanged(entry);
    }

    void remove(const RecordPtr& record)
    {
        Entry* entry = find(record);
        if (entry == nullptr)
            return;
        entry->removed = true;
        markChanged(entry);
    }

    [[nodiscard]] bool contains(const Record& record) const
    {
        const auto known = m_entries.find(&record);
        return known != m_entries.end() && !known->second->removed;
    }

    [[nodiscard]] bool hasChanges() const { return !m_dirty.empty(); }

    /// Writes every change. Must be called in a transaction, and followed by markSaved() after its commit.
    void write()
    {
        for (Entry* entry : m_dirty) {
            if (!entry->removed)
                write(*entry);
            else if (entry->key)
                erase(*entry->key);
        }
    }

    void markSaved()
    {
        for (Entry* entry : std::exchange(m_dirty, {})) {
            if (entry->removed) {
                forget(*entry);
                continue;
            }
            entry->key = entry->writtenKey;
            m_byKey[*entry->key] = entry;
            entry->dirty = false;
        }
    }

    /// Also those that were removed.
    void forEach(const std::function<void(const Record&)>& action) const
    {
        for (const auto& known : m_entries)
            action(*known.second->record);
    }

    /// Writes every record in memory as a new row. Must be followed by markAllSaved() once the result is the store.
    void writeAll()
    {
        for (const auto& known : m_entries) {
            if (!known.second->removed)
                insertRow(*known.second);
        }
    }

    void markAllSaved()
    {
        m_byKey.clear();
        m_dirty.clear();
        for (const auto& known : m_entries)
            m_dirty.push_back(known.second.get());
        markSaved();
    }

    /// Releases the connection, so that it can be replaced.
    void release() { m_update.reset(); }

private:
    struct Entry {
        RecordPtr record;
        std::optional<std::int64_t> key;
        std::int64_t writtenKey = 0;
        bool dirty = false;
        bool removed = false;
        std::vector<QPropertyNotifier> followers;
    };

    Entry* find(const RecordPtr& record)
    {
        const auto known = m_entries.find(record.get());
        return known == m_entries.end() ? nullptr : known->second.get();
    }

    Entry* stored(SQLite::Statement& query)
    {
        const std::int64_t key = query.getColumn(0).getInt64();
        if (const auto known = m_byKey.find(key); known != m_byKey.end())
            return known->second;
        Entry* entry = follow(m_fields.record(readRow(query, m_layout)));
        entry->key = key;
        m_byKey[key] = entry;
        return entry;
    }

    Entry* follow(const RecordPtr& record)
    {
        auto& entry = m_entries[record.get()];
        entry = std::make_unique<Entry>();
        entry->record = record;
        entry->followers = m_fields.follow(*record, [this, changed = entry.get()] { markChanged(changed); });
        return entry.get();
    }

    void markChanged(Entry* entry)
    {
        if (!entry->dirty) {
            entry->dirty = true;
            m_dirty.push_back(entry);
        }
        m_changed();
    }

    void write(Entry& entry)
    {
        if (entry.key) {
            if (!m_update)
                m_update.emplace(m_database, m_layout.updateSql());
            writeRow(*m_update, m_fields.row(*entry.record), entry.key);
            entry.writtenKey = *entry.key;
        } else {
            insertRow(entry);
        }
    }

    void insertRow(Entry& entry)
    {
        SQLite::Statement insertion(m_database, m_layout.insertSql());
        writeRow(insertion, m_fields.row(*entry.record), {});
        entry.writtenKey = m_database.getLastInsertRowid();
    }

    void erase(std::int64_t key)
    {
        SQLite::Statement deletion(m_database, m_layout.deleteSql());
        deletion.bind(1, key);
        deletion.exec();
    }

    void forget(const Entry& entry)
    {
        if (entry.key)
            m_byKey.erase(*entry.key);
        m_entries.erase(entry.record.get());
    }

    SQLite::Database& m_database;
    RecordFields<Record> m_fields;
    TableLayout m_layout;
    std::function<void()> m_changed;
    std::unordered_map<const Record*, std::unique_ptr<Entry>> m_entries;
    std::unordered_map<std::int64_t, Entry*> m_byKey;
    std::vector<Entry*> m_dirty;
    std::optional<SQLite::Statement> m_update;
};
