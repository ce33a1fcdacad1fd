// SPDX-License-Identifier: GPL-3.0-or-later
#include "FurtherHolidays.h"
#include "CalendarTest.h"

class FurtherHolidaysTest : public CalendarTest {
protected:
    /// The name of a day off; nothing if it is none.
    [[nodiscard]] std::optional<QString> nameOf(QDate date) const
    {
        const DayOff* dayOff = counting.counting().value().dayOff(date);
        return dayOff != nullptr ? std::optional(dayOff->name) : std::nullopt;
    }

    FurtherHolidays further{counting, clock};
};

TEST_F(FurtherHolidaysTest, comeOnceForEachYearAndKeepWhatThePersonHasChanged)
{
    const auto lastAdded = [this] { return counting.holidayRegion().value_or(HolidayRegion()).lastYear; };
    further.start();
    EXPECT_TRUE(counting.daysOff().isEmpty()) << "no region";
    counting.setHolidays({u"XX"_s, 2026}, {}, clock.today());
    clock.beginDay({2026, 11, 21});
    EXPECT_EQ(lastAdded(), 2026) << "an unknown region";
    counting.setHolidays({u"DE-BY"_s, 2026}, {}, clock.today());
    counting.addDaysOff({{{2027, 1, 6}, u"Mine"_s}});
    clock.beginDay({2026, 11, 22});
    EXPECT_EQ(lastAdded(), 2028);
    EXPECT_EQ(nameOf({2026, 12, 25}), std::nullopt);
    EXPECT_EQ(nameOf({2027, 1, 6}), u"Mine"_s);
    EXPECT_EQ(nameOf({2028, 12, 25}), u"Christmas Day"_s);
    counting.removeDaysOff({{2028, 12, 25}});
    for (const QDate day : {QDate(2026, 12, 31), {2027, 1, 1}}) {
        clock.beginDay(day);
        EXPECT_EQ(nameOf({2028, 12, 25}), std::nullopt);
        EXPECT_EQ(nameOf({2029, 12, 25}).has_value(), day.year() == 2027);
    }
    counting.setHolidays({u"DE-BE"_s, -2'000'000'000}, {}, clock.today()); // a damaged number
    clock.beginDay({2027, 1, 2});
    EXPECT_EQ(lastAdded(), 2029);
}
