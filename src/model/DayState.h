// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <array>
#include <optional>

/// What a person did, or plans to do, on one day. The enumerators are spelled as they are stored.
enum class DayState { UNKNOWN, IN_OFFICE, OUT_OF_OFFICE, VACATION_DAY, WILL_BE_IN_OFFICE };

/// Every state in declaration order, which is also the order in which a click cycles through them.
inline constexpr std::array allDayStates{
    DayState::UNKNOWN,      DayState::IN_OFFICE,         DayState::OUT_OF_OFFICE,
    DayState::VACATION_DAY, DayState::WILL_BE_IN_OFFICE,
};

/// The stored form, such as "IN_OFFICE".
[[nodiscard]] QLatin1StringView rawValue(DayState state);

/// The state whose stored form is exactly `raw`, if there is one.
[[nodiscard]] std::optional<DayState> dayStateFromRawValue(QStringView raw);

/// The state that a person or a program has written: its stored form, or its words in English or in the person's
/// language. In upper or lower case.
[[nodiscard]] std::optional<DayState> dayStateFromText(const QString& text);

/// The state in the person's language, such as "In the Office".
[[nodiscard]] QString description(DayState state);
