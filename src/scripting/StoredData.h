// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CommandTarget.h"
#include "StoreLock.h"

#include <functional>
#include <memory>

class Clock;
class ModelContainer;

/// The store itself, while no program uses it. It is locked when it is needed first, for as long as this lives.
class StoredData : public CommandTarget {
    Q_DECLARE_TR_FUNCTIONS(StoredData)

public:
    struct Place {
        QString storeFile;
        const Clock& clock;
        std::function<Qt::DayOfWeek()> weekStart;
        /// Whether a store of an earlier version may be migrated, as the program would do.
        bool isMigrating = true;
    };

    explicit StoredData(Place place);
    ~StoredData() override;
    StoredData(const StoredData&) = delete;
    StoredData& operator=(const StoredData&) = delete;

    [[nodiscard]] QVariantMap status() override;
    /// Creates the store if there is none, and no backup of one either.
    void mark(const WrittenMarks& marks) override;
    void undo() override;
    [[nodiscard]] QByteArray csv() override;
    [[nodiscard]] QString backUp() override;

private:
    struct Records;

    void requireStore() const;
    void requireNoBackup() const;
    void createFolder() const;
    void lock();
    DayCommands& open();
    DayCommands& openExisting();

    Place m_place;
    StoreLock m_lock;
    std::unique_ptr<Records> m_records;
};
