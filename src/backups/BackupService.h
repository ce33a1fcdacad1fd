// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "BackupFolder.h"
#include "DayDifference.h"

#include <QFuture>
#include <QObject>
#include <QProperty>
#include <QThreadPool>
#include <QTimer>

#include <chrono>
#include <functional>
#include <optional>

class Clock;
class DayAbsences;
class DayMarker;
class ModelContext;
class StoreError;

/// Makes backups, and takes days back from them. What takes time is done by one thread, which ends with the last job.
/// Nothing keeps a change of a day waiting. A job that runs when this is destroyed is abandoned.
class BackupService : public QObject {
    Q_OBJECT

public:
    /// `quietTime` is how long nothing must change before a daily backup.
    BackupService(DayMarker& marker, const Clock& clock, std::chrono::milliseconds quietTime = std::chrono::minutes(1));
    ~BackupService() override;

    /// Starts to make a backup in the first quiet minute of each day on which something has changed. To be called once
    /// the program has nothing more urgent to do.
    void start();

    /// Of the days that are backed up.
    [[nodiscard]] DayMarker& marker() const { return m_marker; }
    [[nodiscard]] const BackupFolder& folder() const { return m_folder; }
    /// Names the kinds of absence that days had.
    [[nodiscard]] const DayAbsences& absences() const;

    /// Ends with made() or failed().
    void makeNow();
    /// Whether a backup is being made.
    [[nodiscard]] const QProperty<bool>& isMaking() const { return m_isMaking; }
    /// Why the last backup failed, in words for the person. Empty if it succeeded, or none was made yet.
    [[nodiscard]] const QProperty<QString>& problem() const { return m_problem; }

    /// Verifies and reads a backup. The future fails with a StoreError if the backup is not sound. It is to be awaited
    /// with a QFutureWatcher: a continuation whose context has gone would stop the program.
    [[nodiscard]] QFuture<DayStates> read(const QString& path);
    /// Reads a backup like read(), and finds which days restoring it would change. The future fails with a StoreError
    /// also if the store cannot be read.
    [[nodiscard]] QFuture<QList<DayDifference>> compare(const QString& path);
    /// Looks for the newest backup that is sound. The future has no value if there is none.
    [[nodiscard]] QFuture<std::optional<BackupFile>> findNewestSound();

    /// Sets the days to what they were (`after`), as one undo step, once a backup was made. Ends with restored() or
    /// restoreFailed(); then nothing has changed.
    void restore(const QList<DayDifference>& days);
    /// Changes many days in another way, once a backup was made. `change` returns the undo step; it must not need
    /// anything that may have gone by then. Ends with restored() or restoreFailed().
    void backUpAndChange(const std::function<qint64()>& change);
    /// Puts the whole backup, settings included, in the place of the store, which is kept beside it
    /// ("Pellory.store.replaced"). Ends with storeReplaced() or restoreFailed(). For a store that was lost.
    void replaceStore(const QString& path);

Q_SIGNALS:
    void made(const BackupFile& backup);
    /// Also of a daily backup. `reason` is in words for the person.
    void failed(const QString& reason);
    /// The days are set. `group` is the undo step, or 0 if every day was as it should be.
    void restored(qint64 group);
    void restoreFailed(const QString& reason);
    /// The records in memory are out of date: the program must start over with the file.
    void storeReplaced();

private:
    template <class Result> using Job = std::function<Result(const std::stop_token&)>;
    /// Runs a job in the thread.
    template <class Result> [[nodiscard]] QFuture<Result> run(const Job<Result>& job);
    /// The same, and calls one of the others with the outcome, also with the StoreError of `done` itself.
    template <class Result>
    void run(const Job<Result>& job, const std::function<void(const Result&)>& done,
             const std::function<void(const StoreError&)>& failed);
    /// Called with null once a backup was made, otherwise with the reason.
    using Ending = std::function<void(const StoreError*)>;
    enum class Thinning { Yes, No };
    /// Whether the store holds all changes, after a last attempt to save them.
    [[nodiscard]] bool isSaved();
    void make(Thinning thinning, const Ending& ending);
    void report(const StoreError& error);
    void waitForQuiet();
    void makeDaily();
    [[nodiscard]] bool isDue() const;

    DayMarker& m_marker;
    const Clock& m_clock;
    BackupFolder m_folder;
    QThreadPool m_worker;
    std::stop_source m_stop;
    QTimer m_quiet;
    QDate m_doneOn;
    bool m_isPending = true;
    int m_running = 0;
    QProperty<bool> m_isMaking{false};
    QProperty<QString> m_problem;
};
