// SPDX-License-Identifier: GPL-3.0-or-later
#include "StoredData.h"

#include "AppSettings.h"
#include "BackupFolder.h"
#include "Clock.h"
#include "CommandError.h"
#include "CountingRecords.h"
#include "DayMarker.h"
#include "ModelContainer.h"
#include "ModelContext.h"
#include "StoreError.h"
#include "StoreFolder.h"
#include "StoreVersion.h"
#include "UndoHistory.h"

#include <QFileInfo>

using namespace std::chrono_literals;

namespace {

// Longer than another command takes.
constexpr auto timeToWaitForLock = 1s;

// A store that the program has not opened yet has none, and gets them from the program.
std::shared_ptr<AppSettings> settingsIn(ModelContext& context)
{
    const auto stored = context.fetchSettings();
    return stored.isEmpty() ? std::make_shared<AppSettings>() : stored.first();
}

} // namespace

struct StoredData::Records {
    explicit Records(const Place& place)
        : container({QStringLiteral("Example"), place.storeFile})
        , settings(settingsIn(container.mainContext()))
        , marker(container.mainContext(), place.clock)
        , history(marker)
        , counting(marker, *settings)
        , commands({marker, history, counting, *settings, place.clock, place.weekStart})
    {
    }

    ModelContainer container;
    std::shared_ptr<AppSettings> settings;
    DayMarker marker;
    UndoHistory history;
    CountingRecords counting;
    DayCommands commands;
};

StoredData::StoredData(Place place)
    : m_place(std::move(place))
    , m_lock(m_place.storeFile)
{
}

StoredData::~StoredData() = default;

QVariantMap StoredData::status()
{
    return openExisting().status();
}

void StoredData::mark(const WrittenMarks& marks)
{
    DayCommands::verify(marks); // so that nothing is created for nonsense
    if (!QFileInfo::exists(m_place.storeFile)) {
        requireNoBackup();
        createFolder();
    }
    open().mark(marks);
}

void StoredData::undo()
{
    openExisting().undo();
}

QByteArray StoredData::csv()
{
    return openExisting().csv();
}

QString StoredData::backUp()
{
    requireStore();
    lock();
    try {
        const BackupFolder folder(m_place.storeFile);
        const BackupFile backup = folder.make(m_place.clock.now());
        folder.thin(m_place.clock.now());
        return backup.path;
    } catch (const std::exception& error) { // such as those of the file system
        throw CommandError(CommandError::Cause::BackupFailed, QString::fromUtf8(error.what()));
    }
}

void StoredData::requireStore() const
{
    if (!QFileInfo::exists(m_place.storeFile))
        throw CommandError(CommandError::Cause::NoData,
                           tr("There is no data yet: %1 does not exist.").arg(m_place.storeFile));
}

// A new store would keep the program from offering the backup.
void StoredData::requireNoBackup() const
{
    if (!BackupFolder(m_place.storeFile).backups().isEmpty())
        throw CommandError(
            CommandError::Cause::NoData,
            tr("%1 is missing, but there are backups of it. Start Pellory to restore one.").arg(m_place.storeFile));
}

void StoredData::createFolder() const
{
    if (const auto error = createStoreFolder(m_place.storeFile))
        throw CommandError(CommandError::Cause::NoData,
                           tr("The folder of %1 cannot be created: %2")
                               .arg(m_place.storeFile, QString::fromStdString(error.message())));
}

void StoredData::lock()
{
    if (!m_lock.acquire(timeToWaitForLock))
        throw CommandError(CommandError::Cause::NoAnswer,
                           tr("Another Pellory is using your data, perhaps in another session, and cannot be reached "
                              "from here. Quit it first, or use its window."));
}

DayCommands& StoredData::openExisting()
{
    requireStore();
    return open();
}

DayCommands& StoredData::open()
{
    if (m_records)
        return m_records->commands;
    lock();
    try {
        if (!m_place.isMigrating && isOfEarlierVersion(m_place.storeFile))
            throw StoreError(
                tr("The data file is from an earlier version of Pellory. Start Pellory once to convert it."),
                StoreError::Cause::Obstacle);
        m_records = std::make_unique<Records>(m_place);
    } catch (const StoreError& error) {
        throw CommandError(CommandError::Cause::NoData,
                           tr("%1 cannot be used: %2").arg(m_place.storeFile, error.description()));
    }
    return m_records->commands;
}
