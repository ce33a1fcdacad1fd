// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "StoredData.h"

/// What the command line asks for instead of a window.
struct CommandRequest {
    enum class Kind { Status, Mark, Undo, Export, Backup, SearchProvider };

    Kind kind = Kind::Status;
    /// Whether the status is written as JSON.
    bool isJson = false;
    WrittenMarks marks = {};
    /// Where to export to; "-" is standard output.
    QString file = {};
};

/// The exit status of a command that is wrong in itself.
inline constexpr int exitMisuse = 2;

void printError(const QString& text);

/// Carries a command out, in the program that runs in this session or else in the store, and prints what comes of it.
/// Returns the exit status.
[[nodiscard]] int runCommand(const CommandRequest& request, const StoredData::Place& place);
