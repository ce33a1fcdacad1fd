// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "RecordMapping.h"
#include "StoreError.h"

#include <QList>

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

#include <optional>
#include <unordered_map>

/// The records of one kind: which of them are in memory, under which key each is stored, and which have changed.
template <class Mapping> class RecordTable {
public:
    using Record = typename Mapping::Record;
    using RecordPtr = std::shared_ptr<Record>;

    /// Which records to fetch: in the store, and among those that are not stored yet.
    struct Condition {
        std::string where;
        std::vector<std::int64_t> parameters;
        std::function<bool(const Record&)> matches;
    };

    RecordTable(SQLite::Database& database, Mapping mapping, std::function<void()> changed)
        : m_database(database)
        , m_mapping(std::move(mapping))
        , m_changed(std::move(changed))
    {
    }

    [[nodiscard]] QList<RecordPtr> fetch(const Condition& condition)
    {
        QList<RecordPtr> records;
        SQLite::Statement query(m_database, Mapping::layout.selectSql() + condition.where);
        for (std::size_t i = 0; i < condition.parameters.size(); ++i)
            query.bind(static_cast<int>(i) + 1, condition.parameters[i]);
        while (query.executeStep())
            records.append(stored(query));
        for (const Entry* entry : m_dirty) {
            if (!entry->key && condition.matches(*entry->record))
                records.append(entry->record);
        }
        return records;
    }

    void insert(const RecordPtr& record)
    {
        if (!m_entries.contains(record.get()))
            markChanged(follow(record));
    }

    [[nodiscard]] bool hasChanges() const { return !m_dirty.empty(); }

    [[nodiscard]] QList<RecordPtr> changedRecords() const
    {
        QList<RecordPtr> records;
        for (const Entry* entry : m_dirty)
            records.append(entry->record);
        return records;
    }

    /// Writes every changed record. To be called inside a transaction, and followed by written() once that stands.
    void write()
    {
        for (Entry* entry : m_dirty) {
            if (entry->key)
                update(*entry);
            else
                add(*entry);
        }
    }

    void written()
    {
        for (Entry* entry : m_dirty) {
            if (!entry->key) {
                entry->key = entry->writtenKey;
                m_byKey[*entry->key] = entry;
            }
            entry->dirty = false;
        }
        m_dirty.clear();
    }

    /// Lets go of the connection, so that it can be replaced.
    void release() { m_update.reset(); }

private:
    struct Entry {
        RecordPtr record;
        std::optional<std::int64_t> key;
        std::int64_t writtenKey = 0;
        bool dirty = false;
        Followers followers;
    };

    RecordPtr stored(SQLite::Statement& query)
    {
        const std::int64_t key = query.getColumn(0).getInt64();
        if (const auto known = m_byKey.find(key); known != m_byKey.end())
            return known->second->record;
        Entry* entry = follow(m_mapping.record(readRow(query, Mapping::layout)));
        entry->key = key;
        m_byKey[key] = entry;
        return entry->record;
    }

    Entry* follow(const RecordPtr& record)
    {
        auto& entry = m_entries[record.get()];
        entry = std::make_unique<Entry>();
        entry->record = record;
        entry->followers = Mapping::follow(*record, [this, changed = entry.get()] { markChanged(changed); });
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

    void update(Entry& entry)
    {
        if (!m_update)
            m_update.emplace(m_database, Mapping::layout.updateSql());
        // What the last run failed with is of no interest to this one.
        m_update->tryReset();
        bindRow(*m_update, Mapping::row(*entry.record));
        m_update->bind(static_cast<int>(Mapping::layout.columns.size()) + 2, *entry.key);
        m_update->exec();
        m_update->reset();
    }

    void add(Entry& entry)
    {
        SQLite::Statement insertion(m_database, Mapping::layout.insertSql());
        bindRow(insertion, Mapping::row(*entry.record));
        insertion.exec();
        entry.writtenKey = m_database.getLastInsertRowid();
    }

    SQLite::Database& m_database;
    Mapping m_mapping;
    std::function<void()> m_changed;
    std::unordered_map<const Record*, std::unique_ptr<Entry>> m_entries;
    std::unordered_map<std::int64_t, Entry*> m_byKey;
    std::vector<Entry*> m_dirty;
    std::optional<SQLite::Statement> m_update;
};
