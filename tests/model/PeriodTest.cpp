// SPDX-License-Identifier: GPL-3.0-or-later
#include "Period.h"

#include <gtest/gtest.h>

TEST(Period, stepsLeadThroughTheCalendarAndEndWithIt)
{
    std::optional<YearMonth> before;
    std::optional<YearQuarter> quarterBefore;
    int steps = 0;
    for (auto month = std::optional(YearMonth{1, 1}); month; before = month, month = month->next(), ++steps) {
        EXPECT_EQ(month, (YearMonth{1 + steps / 12, 1 + steps % 12}));
        EXPECT_EQ(month->previous(), before);
        const YearQuarter quarter = month->quarter();
        EXPECT_EQ(quarter.months().at(static_cast<std::size_t>(steps % 3)), month->month);
        if (steps % 3 != 0)
            continue;
        EXPECT_EQ(quarter.previous(), quarterBefore);
        EXPECT_EQ(quarterBefore ? quarterBefore->next() : quarter, quarter);
        quarterBefore = quarter;
    }
    EXPECT_EQ(steps, 9999 * 12);
    EXPECT_EQ(quarterBefore->next(), std::nullopt);
}
