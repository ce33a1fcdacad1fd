// SPDX-License-Identifier: GPL-3.0-or-later
#include "ModelContext.h"

#include "Connection.h"
#include "RecordFields.h"
#include "RecordTable.h"
#include "StoreError.h"

#include <QLoggingCategory>

#include <SQLiteCpp/Transaction.h>
#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(logStore, "pellory.store", QtInfoMsg)

// Callers know the store's own error only.
template <class Fetch> auto withStoreErrors(Fetch fetch)
{
    try {
        return fetch();
    } catch (const SQLite::Exception& error) {
        throw storeError(error);
    }
}

template <class Record> auto fetchAll(RecordTable<Record>& table)
{
    return withStoreErrors([&] { return table.fetch({{}, {}, [](const auto&) { return true; }}); });
}

void logFailedSave(const QString& reason)
{
    qCCritical(logStore).noquote() << "Could not save:"_L1 << reason;
}

} // namespace

struct ModelContext::Tables {
    RecordTable<Month> months;
    RecordTable<Goal> goals;
    RecordTable<AppSettings> settings;
};

ModelContext::ModelContext(SQLite::Database& database)
    : m_database(database)
{
    const auto changed = [this] { scheduleSave(); };
    m_tables.reset(new Tables{{database, monthFields(), changed},
                              {database, goalFields(), changed},
                              {database, settingsFields([this] { return fetchGoals(); }), changed}});
    // Settings and goals are few and needed at once; reading them here lets opening fail if they are damaged.
    static_cast<void>(fetchSettings());
}

ModelContext::~ModelContext()
{
    save();
}

QList<std::shared_ptr<Month>> ModelContext::fetchMonths()
{
    return fetchAll(m_tables->months);
}

QList<std::shared_ptr<Goal>> ModelContext::fetchGoals()
{
    return fetchAll(m_tables->goals);
}

QList<std::shared_ptr<AppSettings>> ModelContext::fetchSettings()
{
    return fetchAll(m_tables->settings);
}

QList<std::shared_ptr<Month>> ModelContext::fetchMonths(int year, int month)
{
    const auto matches = [=](const Month& candidate) { return candidate.year == year && candidate.month == month; };
    return withStoreErrors([&] {
        return m_tables->months.fetch({" WHERE year = ? AND month = ?", {year, month}, matches});
    });
}

void ModelContext::insert(const std::shared_ptr<Month>& month)
{
    m_tables->months.insert(month);
}

void ModelContext::insert(const std::shared_ptr<AppSettings>& settings)
{
    m_tables->settings.insert(settings);
    for (const auto& goal : settings->daysPerWeekGoals.value())
        m_tables->goals.insert(goal);
}

void ModelContext::remove(const std::shared_ptr<Month>& month)
{
    m_tables->months.remove(month);
}

void ModelContext::remove(const std::shared_ptr<AppSettings>& settings)
{
    m_tables->settings.remove(settings);
}

bool ModelContext::save()
{
    m_saveScheduled = false;
    if (!hasChanges())
        return true;
    try {
        reconnectIfReadOnly();
        writeChanges();
        return true;
    } catch (const SQLite::Exception& error) {
        logFailedSave(descriptionOf(error));
    } catch (const std::exception& error) {
        logFailedSave(QString::fromUtf8(error.what()));
    }
    return false;
}

bool ModelContext::hasChanges() const
{
    return m_tables->months.hasChanges() || m_tables->goals.hasChanges() || m_tables->settings.hasChanges();
}

void ModelContext::scheduleSave()
{
    if (m_saveScheduled)
        return;
    m_saveScheduled = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            // An explicit save in the same turn has done it, or has failed and must not be reported twice.
            if (m_saveScheduled)
                save();
        },
        Qt::QueuedConnection);
}

// Needs no query, because all settings and goals are in memory.
void ModelContext::matchGoalsToLists()
{
    if (!m_tables->settings.hasChanges())
        return;
    AppSettings::Goals listed;
    for (const auto& settings : m_tables->settings.inMemory())
        listed += settings->daysPerWeekGoals.value();
    for (const auto& goal : listed)
        m_tables->goals.insert(goal);
    for (const auto& goal : m_tables->goals.inMemory()) {
        if (!listed.contains(goal))
            m_tables->goals.remove(goal);
    }
}

// A connection to a file that was not writable stays read-only, even if the file has become writable since.
void ModelContext::reconnectIfReadOnly()
{
    if (sqlite3_db_readonly(m_database.getHandle(), "main") == 0)
        return;
    m_tables->months.release();
    m_tables->goals.release();
    m_tables->settings.release();
    m_database = connectToStore(m_database.getFilename(), saveLockTimeout);
}

void ModelContext::writeChanges()
{
    matchGoalsToLists();
    SQLite::Transaction transaction(m_database, SQLite::TransactionBehavior::IMMEDIATE);
    m_tables->months.write();
    m_tables->goals.write();
    m_tables->settings.write();
    transaction.commit();
    m_tables->months.markSaved();
    m_tables->goals.markSaved();
    m_tables->settings.markSaved();
    m_saveScheduled = false; // adding or deleting goals has scheduled another save
}
