// SPDX-License-Identifier: GPL-3.0-or-later
#include "ModelContext.h"

#include "Connection.h"
#include "SaveProblem.h"
#include "Schema.h"
#include "StoreError.h"
#include "StoreReplacement.h"
#include "StoreTables.h"

#include <QLoggingCategory>

#include <SQLiteCpp/Transaction.h>
#include <sqlite3.h>

#include <algorithm>
#include <iterator>
#include <set>

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

/// Two lists without the records at their beginning and end that are the same in both. Of long lists most are.
template <class Record>
std::pair<QList<Record>, QList<Record>> differingParts(const QList<Record>& one, const QList<Record>& other)
{
    const auto start = std::ranges::mismatch(one, other).in1 - one.begin();
    const auto most = std::min(one.size(), other.size()) - start;
    qsizetype end = 0;
    while (end < most && one.at(one.size() - 1 - end) == other.at(other.size() - 1 - end))
        ++end;
    return {one.sliced(start, one.size() - start - end), other.sliced(start, other.size() - start - end)};
}

/// The rows that are not among others.
std::vector<Row> without(const std::vector<Row>& rows, const std::vector<Row>& others)
{
    const std::set<Row> known(others.begin(), others.end());
    std::vector<Row> rest;
    std::ranges::copy_if(rows, std::back_inserter(rest), [&known](const Row& row) { return !known.contains(row); });
    return rest;
}

const char* textOf(SaveState::File file)
{
    switch (file) {
    case SaveState::File::Ours:
        return "is there again";
    case SaveState::File::Replaced:
        return "was replaced or changed by another program";
    case SaveState::File::Missing:
        break;
    }
    return "was moved or deleted";
}

} // namespace

ModelContext::ModelContext(SQLite::Database& database)
    : m_database(database)
    , m_tables(std::make_unique<StoreTables>(
          database, [this] { scheduleSave(); }, [this] { return fetchGoals(); }))
    , m_watch(database.getFilename())
    , m_retry([this] { save(); })
{
    // Settings and goals are few and needed at once; reading them here lets opening fail if they are damaged.
    static_cast<void>(fetchSettings());
}

ModelContext::~ModelContext()
{
    save();
}

QList<std::shared_ptr<Month>> ModelContext::fetchMonths()
{
    return fetch(m_tables->months, {});
}

QList<std::shared_ptr<Goal>> ModelContext::fetchGoals()
{
    return fetch(m_tables->goals, {});
}

QList<std::shared_ptr<AppSettings>> ModelContext::fetchSettings()
{
    return fetch(m_tables->settings, {});
}

QList<std::shared_ptr<Month>> ModelContext::fetchMonths(int year, int month)
{
    const auto matches = [=](const Month& candidate) { return candidate.year == year && candidate.month == month; };
    return fetch(m_tables->months, {" WHERE year = ? AND month = ?", {year, month}, matches});
}

QList<std::shared_ptr<Month>> ModelContext::fetchMonths(QDate from, QDate to)
{
    const auto matches = [first = std::pair(from.year(), from.month()),
                          last = std::pair(to.year(), to.month())](const Month& candidate) {
        const std::pair month(candidate.year.value(), candidate.month.value());
        return first <= month && month <= last;
    };
    return fetch(m_tables->months, {" WHERE (year, month) BETWEEN (?, ?) AND (?, ?)",
                                    {from.year(), from.month(), to.year(), to.month()},
                                    matches});
}

QDate ModelContext::firstMarkedDay()
{
    QDate first;
    const auto look = [&first](const Month& month) {
        for (const Day& day : month.days.value()) {
            const QDate date = month.dateOf(day.id);
            if (day.isInMonth() && day.state != DayState::UNKNOWN && (!first.isValid() || date < first))
                first = date;
        }
        return first.isValid();
    };
    // In the order of the index, so that it usually ends after a row.
    const std::string firstMarked = R"( WHERE days GLOB '*"state":"[^U]*' ORDER BY year, month LIMIT 1)";
    for (const auto& month : fetch(m_tables->months, {firstMarked, {}, look}))
        look(*month);
    return first;
}

QList<std::shared_ptr<DayNote>> ModelContext::fetchNotes(QDate from, QDate to)
{
    const auto stored = [](QDate date) { return std::get<std::int64_t>(toStored(date)); };
    const auto matches = [=](const DayNote& candidate) { return from <= candidate.date && candidate.date <= to; };
    return fetch(m_tables->notes, {" WHERE date BETWEEN ? AND ?", {stored(from), stored(to)}, matches});
}

void ModelContext::visitChanges(const ChangeVisitor& visit)
{
    requireReadable();
    withStoreErrors([&] { m_tables->changes.forEachBackward(visit); });
}

void ModelContext::visitChanges(QDate date, const ChangeVisitor& visit)
{
    requireReadable();
    withStoreErrors([&] { m_tables->changes.forEachBackward(date, visit); });
}

void ModelContext::append(const DayChange& change)
{
    m_tables->changes.append(change);
    scheduleSave();
}

void ModelContext::thinChanges(qint64 before)
{
    if (!checkFile())
        return;
    try {
        m_tables->changes.thin(before);
    } catch (const SQLite::Exception& error) {
        qCWarning(logStore, "Old changes could not be deleted: %s", error.what());
    }
    m_watch.accept();
}

// What has been overwritten would be taken for other records.
bool ModelContext::isReadable()
{
    return checkFile() || !m_watch.isSameFile();
}

void ModelContext::requireReadable()
{
    if (!isReadable())
        throw StoreError(StoreError::tr("Another program has changed the data file."));
}

template <class Record>
QList<std::shared_ptr<Record>> ModelContext::fetch(RecordTable<Record>& table,
                                                   const typename RecordTable<Record>::Condition& condition)
{
    if (isReadable())
        return withStoreErrors([&] { return table.fetch(condition); });
    auto known = table.inMemory();
    known.removeIf([&](const auto& record) { return !condition.matches(*record); });
    if (known.isEmpty())
        requireReadable();
    return known;
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

void ModelContext::insert(const std::shared_ptr<DayNote>& note)
{
    m_tables->notes.insert(note);
}

void ModelContext::remove(const std::shared_ptr<DayNote>& note)
{
    m_tables->notes.remove(note);
}

template <class Record> RowSet& ModelContext::rowsOf()
{
    RowSet& rows = m_tables->rowsOf(fieldsOf<Record>().table);
    if (!rows.isRead())
        requireReadable();
    return rows;
}

template <class Record> QList<Record> ModelContext::records()
{
    return withStoreErrors([this] {
        const auto fields = fieldsOf<Record>();
        QList<Record> records;
        for (const Row& row : rowsOf<Record>().rows())
            records.append(*fields.record(row));
        return records;
    });
}

template <class Record> bool ModelContext::replace(const QList<Record>& before, const QList<Record>& after)
{
    return withStoreErrors([&] {
        const auto fields = fieldsOf<Record>();
        const auto [onlyBefore, onlyAfter] = differingParts(before, after);
        const auto rowsOfAll = [&fields](const QList<Record>& records) {
            std::vector<Row> all;
            for (const Record& record : records)
                all.push_back(fields.row(record));
            return all;
        };
        const auto rowsBefore = rowsOfAll(onlyBefore);
        const auto rowsAfter = rowsOfAll(onlyAfter);
        const auto removed = without(rowsBefore, rowsAfter);
        const auto added = without(rowsAfter, rowsBefore);
        for (const Row& row : added)
            static_cast<void>(fields.record(row)); // what could not be read later must not be stored
        RowSet& rows = rowsOf<Record>();
        if (!removed.empty())
            rows.remove(removed);
        for (const Row& row : added)
            rows.add(row);
        return !removed.empty() || !added.empty();
    });
}

#define PELLORY_SMALL_RECORDS(Record)                                                                                  \
    template QList<Record> ModelContext::records();                                                                    \
    template bool ModelContext::replace(const QList<Record>&, const QList<Record>&)

PELLORY_SMALL_RECORDS(AbsenceKind);
PELLORY_SMALL_RECORDS(AttendanceRule);
PELLORY_SMALL_RECORDS(CountingChoices);
PELLORY_SMALL_RECORDS(DayAbsence);
PELLORY_SMALL_RECORDS(DayOff);
PELLORY_SMALL_RECORDS(HolidayRegion);
PELLORY_SMALL_RECORDS(UsualWeek);
PELLORY_SMALL_RECORDS(WorkWeek);

bool ModelContext::contains(const Month& month) const
{
    return m_tables->months.contains(month);
}

bool ModelContext::save()
{
    m_saveScheduled = false;
    if (!checkFile())
        return report(m_saveState.value().problem);
    if (!hasChanges())
        return report({});
    QString problem;
    try {
        reconnectIfReadOnly();
        writeChanges();
    } catch (const SQLite::Exception& error) {
        problem = saveProblem(error);
    } catch (const std::exception& error) {
        problem = QString::fromUtf8(error.what());
    }
    m_watch.accept();
    const bool isSaved = report(problem);
    if (isSaved)
        Q_EMIT saved();
    return isSaved;
}

bool ModelContext::report(const QString& problem)
{
    SaveState state = m_saveState;
    // The timer tries again and again, which is logged once.
    if (!problem.isEmpty() && problem != state.problem)
        qCCritical(logStore).noquote() << "Could not save:"_L1 << problem;
    state.isUnsaved = hasChanges() && (!problem.isEmpty() || state.file != SaveState::File::Ours);
    state.problem = problem;
    m_saveState = state;
    m_retry.setNeeded(!state.isFine());
    return !hasChanges();
}

bool ModelContext::checkFile()
{
    SaveState state = m_saveState;
    if (const auto file = m_watch.look(); file != std::exchange(state.file, file)) {
        qCWarning(logStore, "%s %s", m_watch.path().c_str(), textOf(file));
        state.problem.clear();
        m_saveState = state;
        m_retry.setNeeded(!state.isFine());
    }
    return state.file == SaveState::File::Ours;
}

bool ModelContext::hasChanges() const
{
    return m_tables->hasChanges();
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

// A connection to a file that was not writable stays read-only, even if the file has become writable since.
void ModelContext::reconnectIfReadOnly()
{
    if (sqlite3_db_readonly(m_database.getHandle(), "main") == 0)
        return;
    m_tables->release();
    m_database = connectToStore(m_database.getFilename(), saveLockTimeout);
}

void ModelContext::writeChanges()
{
    m_tables->matchGoalsToLists();
    SQLite::Transaction transaction(m_database, SQLite::TransactionBehavior::IMMEDIATE);
    m_tables->write();
    transaction.commit();
    m_tables->markSaved();
    m_saveScheduled = false; // adding or deleting goals has scheduled another save
}

bool ModelContext::keepRecords()
{
    QString problem;
    try {
        replaceFile();
        m_watch.accept();
    } catch (const SQLite::Exception& error) {
        problem = saveProblem(error);
    } catch (const std::exception& error) {
        problem = QString::fromUtf8(error.what());
    }
    checkFile();
    return report(problem) && problem.isEmpty();
}

// Our connection still reads a file that was moved or deleted. It is kept until the new store is in place.
void ModelContext::replaceFile()
{
    StoreReplacement replacement(filePath());
    if (m_watch.isSameFile())
        replacement.copyWhatLiesThere(pellorySchema());
    else
        replacement.copyFrom(m_database);
    m_tables->release();
    auto ours = std::exchange(m_database, connectToStore(replacement.draftName(), saveLockTimeout));
    try {
        m_tables->writeAll(m_database);
        replacement.putInPlace();
        m_tables->release();
        m_database = connectToStore(m_watch.path(), saveLockTimeout);
    } catch (...) {
        m_tables->release();
        m_database = std::move(ours);
        throw;
    }
    m_tables->markAllSaved();
}
