// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

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

/// Whether all that is wanted is a text, which can be had without a display.
[[nodiscard]] bool isTextWanted(int argc, char* argv[]);
