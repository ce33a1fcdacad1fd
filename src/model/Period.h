// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>

/// The range of years that the calendar shows.
inline constexpr int firstYear = 1;
inline constexpr int lastYear = 9999;

/// The quarter, 1 to 4, of a month, 1 to 12. Any other number stops the program.
[[nodiscard]] int quarterOf(int month);

struct YearQuarter {
    int year = 0;
    int quarter = 0;

    [[nodiscard]] std::array<int, 3> months() const { return {3 * quarter - 2, 3 * quarter - 1, 3 * quarter}; }
    /// The neighbours; nothing before the first and after the last quarter of the calendar.
    [[nodiscard]] std::optional<YearQuarter> previous() const;
    [[nodiscard]] std::optional<YearQuarter> next() const;

    bool operator==(const YearQuarter&) const = default;
};

struct YearMonth {
    int year = 0;
    int month = 0;

    [[nodiscard]] YearQuarter quarter() const { return {year, quarterOf(month)}; }
    /// The neighbours; none before the first and after the last month of the calendar.
    [[nodiscard]] std::optional<YearMonth> previous() const;
    [[nodiscard]] std::optional<YearMonth> next() const;

    bool operator==(const YearMonth&) const = default;
};
