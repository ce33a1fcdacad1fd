// SPDX-License-Identifier: GPL-3.0-or-later
#include "DayChangeLog.h"

#include "RecordFields.h"
#include "StoreError.h"

#include <QLoggingCategory>

#include <algorithm>

namespace {

Q_LOGGING_CATEGORY(logChanges, "pellory.store", QtInfoMsg)

} // namespace

DayChangeLog::DayChangeLog(SQLite::Database& database)
    : m_database(database)
    , m_fields(dayChangeFields())
    , m_layout(m_fields.layout())
{
}

void DayChangeLog::forEachBackward(const Visitor& visit) const
{
    if (!visitPending({}, visit))
        return;
    SQLite::Statement rows(m_database, m_layout.selectSql() + " ORDER BY pk DESC");
    visitStored(rows, visit);
}

void DayChangeLog::forEachBackward(QDate date, const Visitor& visit) const
{
    if (!visitPending(date, visit))
        return;
    SQLite::Statement rows(m_database, m_layout.selectSql() + " WHERE date = ? ORDER BY pk DESC");
    rows.bind(1, std::get<std::int64_t>(toStored(date)));
    visitStored(rows, visit);
}

bool DayChangeLog::visitPending(QDate date, const Visitor& visit) const
{
    return std::all_of(m_pending.crbegin(), m_pending.crend(), [&](const DayChange& change) {
        return (date.isValid() && change.date != date) || visit(change);
    });
}

void DayChangeLog::visitStored(SQLite::Statement& rows, const Visitor& visit) const
{
    while (rows.executeStep()) {
        const auto change = read(rows);
        if (change && !visit(*change))
            return;
    }
}

std::shared_ptr<DayChange> DayChangeLog::read(SQLite::Statement& rows) const
{
    try {
        return m_fields.record(readRow(rows, m_layout));
    } catch (const StoreError& error) {
        qCWarning(logChanges, "A change of a day cannot be read: %s", error.what());
        return nullptr;
    }
}

int DayChangeLog::thin(qint64 before)
{
    SQLite::Statement deletion(m_database, "DELETE FROM day_change WHERE time < ?1 AND pk NOT IN "
                                           "(SELECT max(pk) FROM day_change WHERE time < ?1 GROUP BY date)");
    deletion.bind(1, static_cast<std::int64_t>(before));
    return deletion.exec();
}

void DayChangeLog::write()
{
    if (m_pending.isEmpty())
        return;
    if (!m_insertion)
        m_insertion.emplace(m_database, m_layout.insertSql());
    for (const DayChange& change : m_pending)
        writeRow(*m_insertion, m_fields.row(change), {});
}
