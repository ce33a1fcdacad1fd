// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DayCommands.h"

/// Where commands of the command line are carried out. All operations throw a CommandError if they fail.
class CommandTarget {
public:
    CommandTarget() = default;
    CommandTarget(const CommandTarget&) = delete;
    CommandTarget& operator=(const CommandTarget&) = delete;
    virtual ~CommandTarget() = default;

    [[nodiscard]] virtual QVariantMap status() = 0;
    virtual void mark(const WrittenMarks& marks) = 0;
    virtual void undo() = 0;
    [[nodiscard]] virtual QByteArray csv() = 0;
    /// Returns the file of the new backup.
    [[nodiscard]] virtual QString backUp() = 0;
};
