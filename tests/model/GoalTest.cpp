// SPDX-License-Identifier: GPL-3.0-or-later
#include "AppSettings.h"
#include "Testing.h"

TEST(Goal, isMadeFromADecimalNumberInItsRangeWhateverTheLocale)
{
    const auto locale = scopedLocale(QLocale(QLocale::German));
    const std::pair<QString, QString> rows[]{
        {u"0.1"_s, u"0.10"_s},   {u"7"_s, u"7.00"_s},     {u"2.004"_s, u"2.00"_s}, {u"2.006"_s, u"2.01"_s},
        {u"2.125"_s, u"2.12"_s}, {u"2.675"_s, u"2.67"_s}, {u"6.999"_s, u"7.00"_s}, {u"+3"_s, u"3.00"_s},
        {u".5"_s, u"0.50"_s},    {u"10e-1"_s, u"1.00"_s},
    };
    for (const auto& [text, stored] : rows) {
        const auto goal = Goal::create(text, u" ** "_s);
        ASSERT_TRUE(goal) << text.toStdString();
        EXPECT_EQ(goal->wantedDaysPerWeek, stored);
        EXPECT_EQ(goal->desc, u" ** "_s);
        EXPECT_EQ(goal->value(), stored.toDouble());
        EXPECT_NE(goal->id, Goal::create(text, {})->id);
    }
}

TEST(Goal, isNotMadeFromOtherText)
{
    for (const auto& number : {u"0"_s, u"0.0999"_s, u"7.001"_s, u"-1"_s, u"1e15"_s})
        EXPECT_TRUE(goalNumber(number) && !Goal::create(number, {})) << number.toStdString();
    for (const auto& text :
         {u""_s, u" 3"_s, u"3\n"_s, u"3,5"_s, u"3x"_s, u"0x3"_s, u"+-3"_s, u"++3"_s, u"+"_s, u"-inf"_s, u"nan"_s,
          u"3\0"_s, u"\u0663"_s, u"1e300"_s, u"-1e300"_s, u"1e-400"_s, QString(400, u'9')})
        EXPECT_TRUE(!goalNumber(text) && !Goal::create(text, {})) << text.toStdString();
}

TEST(AppSettings, startWithTheDefaultsAndShareTheirGoals)
{
    const AppSettings settings;
    EXPECT_TRUE(settings.firstTime && settings.notificationsEnabled && settings.inOfficeSsids.value().isEmpty());
    EXPECT_FALSE(settings.wifiTrackingEnabled || settings.vacationDaysCountAsInOffice);
    EXPECT_EQ(settings.checkEveryInMinutes, 30);
    QStringList goals;
    for (const auto& goal : settings.daysPerWeekGoals.value())
        goals.append(goal->wantedDaysPerWeek.value() + u' ' + goal->desc.value());
    EXPECT_EQ(goals, (QStringList{u"2.00 not fired"_s, u"3.00 no probation"_s, u"4.00 ideal"_s}));
    EXPECT_EQ(settings.daysPerWeekGoals.value(), AppSettings().daysPerWeekGoals.value());
}
