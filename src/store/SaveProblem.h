// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QString;

namespace SQLite {
class Exception;
}

/// Why a save failed and what to do, in words for the person.
[[nodiscard]] QString saveProblem(const SQLite::Exception& error);
