// SPDX-License-Identifier: GPL-3.0-or-later
#include "PublicHolidays.h"
#include "HolidayRuleFile.h"
#include "HolidayTexts.h"
#include "Testing.h"

namespace {

/// The name of a date; empty if it is no holiday.
QString nameOf(const QString& area, const QString& date)
{
    for (const DayOff& holiday : publicHolidays(area, date.left(4).toInt())) {
        if (holiday.date.toString(Qt::ISODate) == date)
            return holiday.name;
    }
    return {};
}

} // namespace

TEST(PublicHolidays, areWhereAndWhenTheLawSays)
{
    constexpr const char* none = "";
    const struct {
        const char* area;
        const char* date;
        const char* name;
    } rows[] = {
        {"DE-HH", "2017-10-31", "Reformation Day"},
        {"DE-SN", "2017-10-31", "Reformation Day"},
        {"DE-HH", "2016-10-31", none},
        {"DE-SN", "2016-10-31", "Reformation Day"},
        {"DE-SN", "2027-11-17", "Day of Repentance and Prayer"},
        {"DE-SN", "2028-11-22", "Day of Repentance and Prayer"}, // which is the last day that it can be
        {"DE", "2008-05-01", "Labour Day, Ascension Day"},
        {"GB-EAW", "2000-12-25", "Christmas Day"},
        {"GB-EAW", "2002-06-03", "Golden Jubilee"},
        {"GB-EAW", "2002-05-27", none},
        {"GB-SCT", "2033-01-03", "New Year's Day (substitute)"}, // of Saturday, with the 2nd on Sunday
        {"GB-SCT", "2033-01-04", "2 January (substitute)"},
        {"IE", "2030-02-01", "St Brigid's Day"},
        {"IE", "2030-02-04", none},
        {"NL", "2000-04-29", "Queen's Day"},
        {"NL", "2014-04-26", "King's Day"},
        {"NL", "2030-05-05", "Liberation Day"},
        {"US", "2032-12-31", "New Year's Day (substitute)"}, // of a day in the next year
        {"US", "2020-06-19", none},
        {"CH-NE", "2034-01-02", "New Year's Day (substitute)"},
        {"CH-NE", "2033-01-03", none},
        {"LU", "2018-05-09", none},
        {"XX", "2026-01-01", none},
    };
    for (const auto& [area, date, name] : rows)
        EXPECT_EQ(nameOf(QString::fromLatin1(area), QString::fromLatin1(date)), QString::fromUtf8(name))
            << area << date;
    for (const QDate easter :
         {QDate(1954, 4, 18), {1981, 4, 19}, {2035, 3, 25}, {2038, 4, 25}, {2049, 4, 18}, {2285, 3, 22}})
        EXPECT_EQ(easterSunday(easter.year()), easter);
}

TEST(PublicHolidays, areThoseOfEveryYearInOrderWithNamesToTranslate)
{
    for (const HolidayArea& area : holidayAreas()) {
        EXPECT_TRUE(hasHolidayText(area.country) && (area.name.isEmpty() || hasHolidayText(area.name)))
            << qPrintable(area.id);
        for (int year = 2000; year < 2100; year += 33) {
            QDate last(year - 1, 12, 31);
            for (const DayOff& holiday : publicHolidays(area.id, year)) {
                ASSERT_LT(last, holiday.date) << qPrintable(area.id);
                last = holiday.date;
                for (const QString& name : holiday.name.split(u", "_s))
                    EXPECT_TRUE(hasHolidayText(QString(name).remove(u" (substitute)"_s))) << qPrintable(name);
            }
            ASSERT_EQ(last.year(), year) << qPrintable(area.id);
        }
    }
}

TEST(PublicHolidays, areNotReadFromAFileWithAFault)
{
    const QString head = u"country Here\narea XX\narea XX-A A\n"_s;
    EXPECT_NO_THROW(static_cast<void>(readHolidayRules(head + u"01-01 sunday +1 from 2000 every 5 in A: X"_s)));
    for (const auto line : {"13-01: X",
                            "02-30: X",
                            "1-1: X",
                            "01-01",
                            "01-01:",
                            "01-01 X: X",
                            "easter 1: X",
                            "easter +: X",
                            "easterly: X",
                            "fifth monday of may: X",
                            "first day of may: X",
                            "first monday of mai: X",
                            "last monday: X",
                            "monday on 05-01: X",
                            "monday on or near 05-01: X",
                            "monday on or after 05-32: X",
                            "01-01 monday 1: X",
                            "01-01 substitute: X",
                            "01-01 substitute friday: X",
                            "01-01 from 19: X",
                            "01-01 until x: X",
                            "01-01 every 5: X",
                            "01-01 from 2000 every 1: X",
                            "01-01 except: X",
                            "01-01 in: X",
                            "01-01 in B: X",
                            "2017-02-29: X",
                            "20170-01: X",
                            "area XX",
                            "area",
                            "country"}) {
        try {
            static_cast<void>(readHolidayRules(head + QString::fromLatin1(line)));
            ADD_FAILURE() << line;
        } catch (const HolidayRuleError& error) {
            EXPECT_THAT(error.what(), testing::StartsWith("Line 4: ")) << line;
        }
    }
    EXPECT_THROW(static_cast<void>(readHolidayRules(u"01-01: X")), HolidayRuleError);
}
