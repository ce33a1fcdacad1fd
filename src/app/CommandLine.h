// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CommandRun.h"

#include <QStringList>

#include <initializer_list>
#include <optional>
#include <span>
#include <string_view>

/// What the command line asks for.
enum class StartMode {
    Shown,
    /// Started by the session: no window is opened.
    AtLogin,
    /// A running program is to check now. A new one checks when it starts anyway.
    WithCheck
};

/// The arguments without those of the toolkit, such as "-platform offscreen", which has not taken them out yet. Can be
/// called before there is an application, like isMisuse().
[[nodiscard]] QStringList ownArguments(std::span<char* const> arguments);

/// Whether readCommandLine() would print an error.
[[nodiscard]] bool isMisuse(const QStringList& arguments);

/// Prints help, the version or an error if need be, and then ends the process.
[[nodiscard]] StartMode readCommandLine(const QStringList& arguments);

/// The command that is asked for. Prints an error, and returns nothing, if it is none.
[[nodiscard]] std::optional<CommandRequest> readCommand(const QStringList& arguments);

/// Whether an option of a command is given. Can be called before there is an application.
[[nodiscard]] bool asksForCommand(std::span<char* const> arguments);

/// Whether one of the options is given, with a value or without. Can be called before there is an application.
[[nodiscard]] bool hasOption(std::span<char* const> arguments, std::initializer_list<std::string_view> options);
