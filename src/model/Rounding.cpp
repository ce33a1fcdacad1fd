// SPDX-License-Identifier: GPL-3.0-or-later
#include "Rounding.h"

#include <array>
#include <charconv>

// By way of the text, because a multiplication by 100 would make ties of values that are none.
double roundedToTwoDecimals(double value)
{
    std::array<char, 400> text{};
    const auto written = std::to_chars(text.begin(), text.end(), value, std::chars_format::fixed, 2);
    std::from_chars(text.cbegin(), written.ptr, value);
    return value;
}
