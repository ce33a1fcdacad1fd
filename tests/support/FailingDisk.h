// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QScopeGuard>

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <functional>
#include <map>
#include <set>
#include <utility>

#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

/// While it exists, SQLite's files are on a disk that can fail, or kill the program, at any call.
class FailingDisk {
public:
    /// A file gets, changes or loses a name: that only kills.
    enum Call : std::size_t { Open, Write, Sync, Truncate, Delete, Name, callCount };
    enum Fault { FailOnce, FailFromThenOn, Kill };
    static constexpr auto failures = {FailOnce, FailFromThenOn};
    static constexpr auto failuresAndKill = {FailOnce, FailFromThenOn, Kill};
    using Counts = std::array<int, callCount>;

    FailingDisk()
    {
        ownVfs = *realVfs;
        ownVfs.zName = "failing";
        ownVfs.xOpen = [](auto*, const char* name, sqlite3_file* file, int flags, int* outFlags) {
            file->pMethods = nullptr;
            const int result = strikes(Open) ? SQLITE_CANTOPEN : realVfs->xOpen(realVfs, name, file, flags, outFlags);
            if (result == SQLITE_OK)
                file->pMethods = failing(file->pMethods);
            return result;
        };
        ownVfs.xDelete = [](auto*, const char* name, int isSynced) {
            if (strikes(Delete))
                return SQLITE_IOERR_DELETE;
            if (isSynced == 0)
                unsynced.insert(name);
            return realVfs->xDelete(realVfs, name, isSynced);
        };
        sqlite3_vfs_register(&ownVfs, 1);
    }
    ~FailingDisk() { sqlite3_vfs_unregister(&ownVfs), sqlite3_vfs_register(realVfs, 1); }
    Q_DISABLE_COPY_MOVE(FailingDisk)

    /// Repeats an attempt until each call that the disk gets while it is armed has been struck by each fault. Returns
    /// how many calls of each kind there were.
    template <class Attempt> static Counts strikeEverywhere(std::initializer_list<Fault> faults, Attempt attempt)
    {
        Counts counts{};
        for (const Fault fault : faults) {
            for (std::size_t call = 0; call < callCount; ++call) {
                int number = 0;
                for (bool isMore = true; isMore && !testing::Test::HasFailure(); isMore = hasStruck()) {
                    SCOPED_TRACE(testing::Message() << "fault " << fault << ", kind " << call << ", call " << number);
                    plan = {static_cast<Call>(call), ++number, fault, false, 0, false};
                    attempt();
                }
                counts.at(call) = number - 1;
            }
        }
        return counts;
    }

    /// Runs an action with the disk armed; in a process of its own if it may be killed.
    template <class Action> static void run(Action action)
    {
        const pid_t child = plan.fault == Kill ? fork() : 0;
        if (child != 0) {
            int status = 0;
            EXPECT_EQ(waitpid(child, &status, 0), child);
            plan.hasStruck = status == SIGKILL;
            EXPECT_TRUE(status == SIGKILL || status == EXIT_SUCCESS) << status;
            return;
        }
        arm(true);
        action();
        arm(false);
        if (plan.fault == Kill)
            _exit(EXIT_SUCCESS);
    }

    static void arm(bool isArmed)
    {
        plan.isArmed = isArmed;
        unsynced.clear();
    }
    static void killBeforeName()
    {
        if (plan.fault == Kill)
            strikes(Name);
    }
    /// Called once, before the next write.
    static inline std::function<void()> beforeWrite;

    /// Whether all that was done since the disk was armed survives a power cut.
    [[nodiscard]] static bool isSynced() { return unsynced.empty(); }
    [[nodiscard]] static bool hasStruck() { return plan.hasStruck; }

private:
    static bool strikes(Call call)
    {
        if (!plan.isArmed || call != plan.call || ++plan.calls < plan.number)
            return false;
        if (plan.fault == Kill && call != Write) // which is killed halfway
            raise(SIGKILL);
        plan.hasStruck = true;
        return plan.fault != FailOnce || plan.calls == plan.number;
    }

    /// A journal has no locks, so its methods differ from those of a store, but not the methods that can fail.
    static const sqlite3_io_methods* failing(const sqlite3_io_methods* inner)
    {
        innerMethods = inner;
        sqlite3_io_methods& methods = failingMethods[inner] = *inner;
        methods.xWrite = [](auto* file, const void* data, int size, sqlite3_int64 offset) {
            if (const auto action = std::exchange(beforeWrite, {}))
                action();
            const bool isFull = strikes(Write); // half of the data fits
            const int result = innerMethods->xWrite(file, data, isFull ? size / 2 : size, offset);
            unsynced.insert(file);
            if (isFull && plan.fault == Kill)
                raise(SIGKILL);
            return isFull ? SQLITE_FULL : result;
        };
        methods.xSync = [](auto* of, int how) {
            if (strikes(Sync))
                return SQLITE_IOERR_FSYNC;
            unsynced.erase(of);
            return innerMethods->xSync(of, how);
        };
        methods.xTruncate = [](auto* file, sqlite3_int64 size) {
            unsynced.insert(file);
            return strikes(Truncate) ? SQLITE_IOERR_TRUNCATE : innerMethods->xTruncate(file, size);
        };
        return &methods;
    }

    struct Plan {
        Call call;
        int number;
        Fault fault;
        bool isArmed;
        int calls;
        bool hasStruck;
    };
    static inline Plan plan{};
    /// Files with writes, and names with a deletion, that may not have reached the disk.
    static inline std::set<const void*> unsynced;
    static inline sqlite3_vfs* const realVfs = sqlite3_vfs_find(nullptr);
    static inline sqlite3_vfs ownVfs{};
    static inline const sqlite3_io_methods* innerMethods = nullptr;
    static inline std::map<const sqlite3_io_methods*, sqlite3_io_methods> failingMethods;
};
