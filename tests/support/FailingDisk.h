// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include <gtest/gtest.h>

#include <array>
#include <map>

#include <sqlite3.h>

/// While it lives, SQLite's files are on a disk that can be told to fail.
class FailingDisk {
public:
    enum Call : std::size_t { Open, Write, Sync, Truncate, Delete, callCount };
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
            return strikes(Delete) ? SQLITE_IOERR_DELETE : realVfs->xDelete(realVfs, name, isSynced);
        };
        sqlite3_vfs_register(&ownVfs, 1);
    }
    ~FailingDisk() { sqlite3_vfs_unregister(&ownVfs), sqlite3_vfs_register(realVfs, 1); }
    Q_DISABLE_COPY_MOVE(FailingDisk)

    /// While it is armed, the call of a kind with this number fails, or all from that one on.
    static void strikeAt(Call call, int number, bool isForGood) { fault = {call, number, isForGood, false, 0, false}; }
    static void arm(bool isArmed) { fault.isArmed = isArmed; }
    [[nodiscard]] static bool hasStruck() { return fault.hasStruck; }

    /// Makes an attempt for every single call that can fail in it, and in both ways. How many there are of each kind.
    template <class Attempt> static Counts failEverywhere(Attempt attempt)
    {
        Counts counts{};
        for (std::size_t call = 0; call < 2 * callCount; ++call) {
            int& number = counts.at(call / 2) = 0;
            for (bool isMore = true; isMore && !testing::Test::HasFailure(); isMore = hasStruck()) {
                SCOPED_TRACE(testing::Message() << "kind " << call / 2 << ", call " << number << ", " << call % 2);
                strikeAt(static_cast<Call>(call / 2), ++number, call % 2 == 1);
                attempt();
            }
            --number;
        }
        std::cout << "Open, write, sync, truncate, delete: " << testing::PrintToString(counts) << std::endl;
        return counts;
    }

private:
    static bool strikes(Call call)
    {
        if (!fault.isArmed || call != fault.call || ++fault.calls < fault.number)
            return false;
        fault.hasStruck = true;
        return fault.isForGood || fault.calls == fault.number;
    }

    /// A journal has no locks, so its methods are others than those of a store, but not those that can fail.
    static const sqlite3_io_methods* failing(const sqlite3_io_methods* inner)
    {
        innerMethods = inner;
        sqlite3_io_methods& methods = failingMethods[inner] = *inner;
        methods.xWrite = [](auto* file, const void* data, int size, sqlite3_int64 offset) {
            const bool isFull = strikes(Write); // half of it has room
            const int result = innerMethods->xWrite(file, data, isFull ? size / 2 : size, offset);
            return isFull ? SQLITE_FULL : result;
        };
        methods.xSync = [](auto* of, int how) {
            return strikes(Sync) ? SQLITE_IOERR_FSYNC : innerMethods->xSync(of, how);
        };
        methods.xTruncate = [](auto* file, sqlite3_int64 size) {
            return strikes(Truncate) ? SQLITE_IOERR_TRUNCATE : innerMethods->xTruncate(file, size);
        };
        return &methods;
    }

    struct Fault {
        Call call;
        int number;
        bool isForGood;
        bool isArmed;
        int calls;
        bool hasStruck;
    };
    static inline Fault fault{};
    static inline sqlite3_vfs* const realVfs = sqlite3_vfs_find(nullptr);
    static inline sqlite3_vfs ownVfs{};
    static inline const sqlite3_io_methods* innerMethods = nullptr;
    static inline std::map<const sqlite3_io_methods*, sqlite3_io_methods> failingMethods;
};
