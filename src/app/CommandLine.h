// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include <initializer_list>
#include <span>
#include <string_view>

/// What a start is asked for on the command line.
enum class Start {
    Shown,
    /// By the session itself: nothing is shown.
    AtLogin,
    /// With a check: one that runs already makes it, a new one makes it anyway.
    WithCheck
};

/// Help, version and what cannot be understood are printed and end the process.
[[nodiscard]] Start readCommandLine(const QStringList& arguments);

/// Whether one of the options is there, for what has to be known before there is an application.
[[nodiscard]] bool hasOption(std::span<char* const> arguments, std::initializer_list<std::string_view> options);
