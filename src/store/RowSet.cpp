// SPDX-License-Identifier: GPL-3.0-or-later
#include "RowSet.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

#include <set>

std::vector<Row> RowSet::rows()
{
    std::vector<Row> rows;
    for (const Entry& entry : entries())
        rows.push_back(entry.row);
    return rows;
}

void RowSet::add(const Row& row)
{
    entries().push_back({row, {}});
    changed();
}

void RowSet::remove(const std::vector<Row>& rows)
{
    std::multiset<Row> left(rows.begin(), rows.end());
    std::erase_if(entries(), [&](const Entry& entry) {
        const auto found = left.find(entry.row);
        if (found == left.end())
            return false;
        left.erase(found);
        if (entry.key)
            m_removed.push_back(*entry.key);
        return true;
    });
    changed();
}

void RowSet::write()
{
    m_written.clear();
    if (!m_isChanged)
        return;
    for (const std::int64_t key : m_removed) {
        SQLite::Statement deletion(m_database, m_layout.deleteSql());
        deletion.bind(1, key);
        deletion.exec();
    }
    for (const Entry& entry : *m_entries) {
        if (!entry.key)
            insert(entry.row);
    }
}

void RowSet::writeAll()
{
    m_written.clear();
    if (!m_entries)
        return;
    m_database.exec("DELETE FROM " + m_layout.name);
    for (const Entry& entry : *m_entries)
        insert(entry.row);
}

void RowSet::markSaved()
{
    m_removed.clear();
    m_isChanged = false;
    if (!m_entries)
        return;
    auto key = m_written.begin();
    for (Entry& entry : *m_entries) {
        if (!entry.key)
            entry.key = *key++;
    }
}

void RowSet::markAllSaved()
{
    if (m_entries) {
        for (Entry& entry : *m_entries)
            entry.key.reset();
    }
    markSaved();
}

std::vector<RowSet::Entry>& RowSet::entries()
{
    if (!m_entries) {
        std::vector<Entry> entries;
        SQLite::Statement query(m_database, m_layout.selectSql() + " ORDER BY pk");
        while (query.executeStep())
            entries.push_back({readRow(query, m_layout), query.getColumn(0).getInt64()});
        m_entries = std::move(entries);
    }
    return *m_entries;
}

void RowSet::insert(const Row& row)
{
    SQLite::Statement insertion(m_database, m_layout.insertSql());
    writeRow(insertion, row, {});
    m_written.push_back(m_database.getLastInsertRowid());
}

void RowSet::changed()
{
    m_isChanged = true;
    m_changed();
}
