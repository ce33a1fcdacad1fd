// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CommandError.h"

#include <QLatin1StringView>

#include <array>
#include <utility>

/// How the program is reached over the session bus.
namespace bus_names {

using namespace Qt::StringLiterals;

inline constexpr auto service = "io.github.pellory.Pellory"_L1;
inline constexpr auto path = "/io/github/pellory/Pellory"_L1;
inline constexpr auto attendance = "io.github.pellory.Pellory1"_L1;
inline constexpr auto searchService = "io.github.pellory.Pellory.SearchProvider"_L1;
inline constexpr auto searchPath = "/io/github/pellory/Pellory/SearchProvider"_L1;

inline constexpr std::array errors{
    std::pair(CommandError::Cause::InvalidDate, "io.github.pellory.Pellory1.Error.InvalidDate"_L1),
    std::pair(CommandError::Cause::InvalidState, "io.github.pellory.Pellory1.Error.InvalidState"_L1),
    std::pair(CommandError::Cause::NothingToUndo, "io.github.pellory.Pellory1.Error.NothingToUndo"_L1),
    std::pair(CommandError::Cause::TrackingOff, "io.github.pellory.Pellory1.Error.TrackingOff"_L1),
    std::pair(CommandError::Cause::NoData, "io.github.pellory.Pellory1.Error.NoData"_L1),
    std::pair(CommandError::Cause::NotSaved, "io.github.pellory.Pellory1.Error.NotSaved"_L1),
    std::pair(CommandError::Cause::BackupFailed, "io.github.pellory.Pellory1.Error.BackupFailed"_L1),
    std::pair(CommandError::Cause::NoAnswer, "io.github.pellory.Pellory1.Error.NoAnswer"_L1),
};

} // namespace bus_names
