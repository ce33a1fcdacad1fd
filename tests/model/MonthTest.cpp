// SPDX-License-Identifier: GPL-3.0-or-later
#include "Month.h"
#include "Testing.h"

#include <QTimeZone>

#include <chrono>

namespace {

// Computed by the standard library and not by Qt.
bool isMondayToFriday(int year, int month, qint64 dayId)
{
    using namespace std::chrono;
    return weekday(sys_days(std::chrono::year(year) / month / 1) + days(dayId - 1)).iso_encoding() < 6;
}

} // namespace

TEST(Month, isAGridFromSundayOnInEveryTimeZone)
{
    const struct {
        int year, month, cellsBefore, days, workdays;
    } rows[]{{2025, 3, 6, 31, 21}, {2026, 2, 0, 28, 20},  {2024, 2, 4, 29, 21},  {1900, 2, 4, 28, 20},
             {1, 1, 1, 31, 23},    {2011, 12, 4, 31, 22}, {2015, 10, 4, 31, 22}, {9999, 12, 3, 31, 23}};
    // Some with days that have no midnight; one left a day out.
    for (const char* zone : {"America/Sao_Paulo", "Pacific/Apia", "UTC"}) {
        ASSERT_TRUE(QTimeZone(zone).isValid());
        qputenv("TZ", zone);
        for (const auto& row : rows) {
            SCOPED_TRACE(testing::Message() << row.year << '-' << row.month << ' ' << zone);
            const Month month(row.year, row.month);
            EXPECT_TRUE(month.year == row.year && month.month == row.month && month.daysInMonth == row.days);
            EXPECT_EQ(month.workdayCount(), row.workdays);
            ASSERT_EQ(month.days.value().size(), 38);
            for (int place = 0; place < 38; ++place) {
                const Day& cell = month.days.value().at(place);
                const int number = place + 1 - row.cellsBefore;
                EXPECT_EQ(cell.id, number > row.days ? -number : number);
                EXPECT_EQ(cell.state, DayState::UNKNOWN);
                EXPECT_EQ(cell.isWorkday, isMondayToFriday(row.year, row.month, cell.id)) << number;
                EXPECT_EQ(cell.isWorkday, month.isWorkday(cell.id)) << number;
            }
            EXPECT_EQ(month.indexOf(row.days), row.cellsBefore + row.days - 1);
            EXPECT_EQ(month.indexOf(row.days + 1), std::nullopt);
        }
    }
}

TEST(Month, isOrderedByItsNumberAloneAndEqualToItselfAlone)
{
    const Month december(2025, 12), january(2026, 1), laterJanuary(2027, 1);
    EXPECT_TRUE(january < december && january == january);
    EXPECT_FALSE(december < january || january < laterJanuary || laterJanuary < january || january == Month(2026, 1));
}

TEST(Month, isNamedInTheLanguageOfThePerson)
{
    for (const auto& [locale, name] : {std::pair(u"C"_s, u"March"_s), {u"de"_s, u"März"_s}, {u"ru"_s, u"марта"_s}}) {
        const auto scope = scopedLocale(QLocale(locale));
        EXPECT_EQ(Month(2026, 3).name, name);
    }
}

TEST(MonthDeathTest, impossibleMonthStopsTheProgram)
{
    EXPECT_DEATH(Month(2026, 13), "no month 13");
}
