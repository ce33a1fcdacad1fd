// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Absence.h"
#include "DayChange.h"
#include "WorkTime.h"

#include <QLatin1StringView>
#include <QString>

#include <array>
#include <optional>

/// What is in a list of days, shared by what writes and what reads it. None of the names is ever translated.
namespace days_csv {

enum class Column {
    Date,
    State,
    /// The raw name of a kind of the program, or "OWN".
    Absence,
    /// Of an own kind.
    AbsenceName,
    /// How the kind counts.
    CountsAs,
    Note,
    /// The name of a day off.
    DayOff,
    /// Empty for a day that is not off.
    DayOffSource,
    ChangedBy,
    /// In UTC, to the millisecond.
    ChangedAt,
    Network
};

/// In the order in which they are written.
inline constexpr std::array<QLatin1StringView, 11> columnNames{
    QLatin1StringView("date"),         QLatin1StringView("state"),        QLatin1StringView("absence"),
    QLatin1StringView("absence_name"), QLatin1StringView("counts_as"),    QLatin1StringView("note"),
    QLatin1StringView("day_off"),      QLatin1StringView("day_off_from"), QLatin1StringView("changed_by"),
    QLatin1StringView("changed_at"),   QLatin1StringView("network"),
};

inline constexpr QLatin1StringView ownKind("OWN");

/// The names of values in the list. The last functions find the value again, in upper or lower case; nothing if there
/// is none.
[[nodiscard]] QLatin1StringView nameOfKind(int kind);
[[nodiscard]] QLatin1StringView nameOf(Treatment treatment);
[[nodiscard]] QLatin1StringView nameOf(DayOffSource source);
[[nodiscard]] QLatin1StringView nameOf(ChangedBy by);
[[nodiscard]] std::optional<int> kindNamed(QStringView name);
[[nodiscard]] std::optional<Treatment> treatmentNamed(QStringView name);
[[nodiscard]] std::optional<DayOffSource> sourceNamed(QStringView name);
[[nodiscard]] std::optional<ChangedBy> authorNamed(QStringView name);

/// With an apostrophe before what a spreadsheet would take for a formula, and before what looks like such an escape.
[[nodiscard]] QString escaped(const QString& text);
/// Without that apostrophe.
[[nodiscard]] QString unescaped(const QString& text);

} // namespace days_csv
