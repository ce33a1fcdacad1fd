// SPDX-License-Identifier: GPL-3.0-or-later
#include "BackupService.h"

#include "Clock.h"
#include "DayMarker.h"
#include "ModelContext.h"
#include "StoreError.h"
#include "StoreReplacement.h"

#include <QFileInfo>
#include <QFutureWatcher>
#include <QPromise>

namespace {

constexpr int yearsOfChanges = 3;

StoreError unsavedError()
{
    return StoreError(BackupService::tr("The latest changes are not in the data file yet."),
                      StoreError::Cause::Obstacle);
}

} // namespace

BackupService::BackupService(DayMarker& marker, const Clock& clock, std::chrono::milliseconds quietTime)
    : m_marker(marker)
    , m_clock(clock)
    , m_folder(marker.context().filePath())
{
    m_worker.setMaxThreadCount(1);
    m_worker.setExpiryTimeout(0);
    m_quiet.setSingleShot(true);
    m_quiet.setInterval(quietTime);
    m_quiet.setTimerType(Qt::VeryCoarseTimer);
    connect(&m_quiet, &QTimer::timeout, this, &BackupService::makeDaily);
}

BackupService::~BackupService()
{
    m_stop.request_stop();
    m_worker.clear();
    m_worker.waitForDone();
}

const DayAbsences& BackupService::absences() const
{
    return m_marker.absences();
}

void BackupService::start()
{
    connect(&m_marker.context(), &ModelContext::saved, this, &BackupService::waitForQuiet);
    connect(&m_clock, &Clock::dayChanged, this, [this] {
        if (m_isPending)
            m_quiet.start();
    });
    if (isDue())
        m_quiet.start();
}

void BackupService::waitForQuiet()
{
    m_isPending = true;
    if (m_doneOn != m_clock.today())
        m_quiet.start();
}

void BackupService::makeDaily()
{
    if (!isDue())
        return;
    ModelContext& context = m_marker.context();
    if (!context.saveState().value().isFine()) // which is shown already
        return;
    context.thinChanges(m_clock.now().addYears(-yearsOfChanges).toMSecsSinceEpoch());
    make(Thinning::Yes, [this](const StoreError* error) {
        if (error == nullptr)
            m_doneOn = m_clock.today();
        else if (error->cause() != StoreError::Cause::Lock) // after the change there will be another quiet minute
            report(*error);
    });
}

bool BackupService::isDue() const
{
    if (!m_problem.value().isEmpty())
        return true;
    const QDateTime now = m_clock.now();
    for (const BackupFile& backup : m_folder.backups()) {
        if (!backup.isBeforeMigration && backup.made <= now)
            return backup.made.date() != now.date() &&
                   QFileInfo(m_marker.context().filePath()).lastModified() > backup.made;
    }
    return true;
}

void BackupService::makeNow()
{
    make(Thinning::Yes, [this](const StoreError* error) {
        if (error != nullptr)
            report(*error);
    });
}

void BackupService::report(const StoreError& error)
{
    m_problem = error.description();
    m_doneOn = {}; // the next quiet minute tries again
    Q_EMIT failed(error.description());
}

bool BackupService::isSaved()
{
    ModelContext& context = m_marker.context();
    return context.save() && context.saveState().value().isFine();
}

void BackupService::make(Thinning thinning, const Ending& ending)
{
    if (!isSaved()) {
        const StoreError error = unsavedError();
        return ending(&error);
    }
    const auto end = [this, ending](const StoreError* error) {
        m_isMaking = --m_running > 0;
        ending(error);
    };
    ++m_running;
    m_isMaking = true;
    m_isPending = false;
    const auto job = [thinning, folder = m_folder, now = m_clock.now()](const std::stop_token& stop) {
        BackupFile backup = folder.make(now, stop);
        if (thinning == Thinning::Yes)
            folder.thin(now);
        return backup;
    };
    run<BackupFile>(
        job,
        [this, end](const BackupFile& backup) {
            m_problem = QString();
            end(nullptr);
            Q_EMIT made(backup);
        },
        [this, end](const StoreError& error) {
            m_isPending = true;
            end(&error);
        });
}

QFuture<DayStates> BackupService::read(const QString& path)
{
    return run<DayStates>([path](const std::stop_token&) { return readBackup(path); });
}

QFuture<QList<DayDifference>> BackupService::compare(const QString& path)
{
    const auto job = [path, store = m_marker.context().filePath(), isSaved = isSaved()](const std::stop_token& stop) {
        if (!isSaved)
            throw unsavedError();
        const DayStates inBackup = readBackup(path);
        return differences(readStore(store, stop), inBackup);
    };
    return run<QList<DayDifference>>(job);
}

QFuture<std::optional<BackupFile>> BackupService::findNewestSound()
{
    return run<std::optional<BackupFile>>([folder = m_folder](const std::stop_token&) -> std::optional<BackupFile> {
        for (const BackupFile& backup : folder.backups()) {
            try {
                static_cast<void>(readBackup(backup.path));
                return backup;
            } catch (const StoreError&) {
                continue;
            }
        }
        return {};
    });
}

void BackupService::restore(const QList<DayDifference>& days)
{
    QList<DayMark> marks;
    for (const DayDifference& day : days)
        marks.append({day.date, day.after, day.absenceAfter});
    backUpAndChange([this, marks] { return m_marker.mark(marks, ChangedBy::Restore); });
}

void BackupService::backUpAndChange(const std::function<qint64()>& change)
{
    // The backup that the days may come from must not go.
    make(Thinning::No, [this, change](const StoreError* error) {
        try {
            if (error != nullptr)
                throw *error;
            Q_EMIT restored(change());
        } catch (const StoreError& reason) {
            Q_EMIT restoreFailed(reason.description());
        }
    });
}

void BackupService::replaceStore(const QString& path)
{
    using Replacement = std::shared_ptr<StoreReplacement>;
    const auto prepare = [path, store = m_marker.context().filePath()](const std::stop_token&) {
        auto replacement = std::make_shared<StoreReplacement>(store);
        replacement->copyBackup(path);
        return replacement;
    };
    run<Replacement>(
        prepare,
        [this](const Replacement& replacement) {
            m_marker.context().save(); // into the file that is kept
            replacement->putInPlace();
            Q_EMIT storeReplaced();
        },
        [this](const StoreError& error) { Q_EMIT restoreFailed(error.description()); });
}

template <class Result> QFuture<Result> BackupService::run(const Job<Result>& job)
{
    const auto promise = std::make_shared<QPromise<Result>>();
    promise->start();
    m_worker.start([promise, job, stop = m_stop.get_token()] {
        try {
            promise->addResult(job(stop));
        } catch (...) {
            promise->setException(std::current_exception());
        }
        promise->finish();
    });
    return promise->future();
}

template <class Result>
void BackupService::run(const Job<Result>& job, const std::function<void(const Result&)>& done,
                        const std::function<void(const StoreError&)>& failed)
{
    auto* watcher = new QFutureWatcher<Result>(this);
    connect(watcher, &QFutureWatcherBase::finished, this, [watcher, done, failed] {
        watcher->deleteLater();
        try {
            done(watcher->result());
        } catch (const StoreError& error) {
            failed(error);
        } catch (const std::exception& error) { // such as those of the file system
            failed(StoreError(QString::fromUtf8(error.what()), StoreError::Cause::Obstacle));
        }
    });
    watcher->setFuture(run(job));
}
