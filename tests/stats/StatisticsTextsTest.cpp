// SPDX-License-Identifier: GPL-3.0-or-later
#include "StatisticsTexts.h"
#include "AttendanceStatistics.h"
#include "Testing.h"

TEST(StatisticsTexts, readAsTheyShouldWhateverTheLocale)
{
    const auto locale = scopedLocale(QLocale(QLocale::German));
    EXPECT_EQ(toMarkdown(headlineText(12, PeriodWord::Quarter)), u"12 days in the office this **quarter**"_s);
    EXPECT_EQ(toMarkdown(headlineText(1, PeriodWord::Month)), u"1 days in the office this **month**"_s);
    EXPECT_EQ(averageText(1234.567), u"You've reached 1234.57 average days in office per week"_s);
    EXPECT_EQ(averageText(40 / 64.0 * 5), u"You've reached 3.12 average days in office per week"_s);
    EXPECT_EQ(twoDecimals(3.125) + goalValueText(2.625), u"3.122.62/5"_s);
    EXPECT_EQ(twoDecimals(0.015) + twoDecimals(0.025), u"0.010.03"_s); // which are no ties in binary
    EXPECT_EQ(workdaysText(1), u"1 workdays"_s);
}

TEST(StatisticsTexts, goalLineTakesTheDescriptionAsItIs)
{
    const std::tuple<QString, qint64, QString, QString, QString> rows[]{
        {{}, 3, u"3 more days"_s, u" to reach "_s, u"2.50/5"_s},
        {u"Team days"_s, 1, u"1 more days"_s, u" to reach goal "_s, u"Team days"_s},
        {u"**%1** %2 <b>&amp;"_s, -4, u"0 more days"_s, u" to reach goal "_s, u"**%1** %2 <b>&amp;"_s},
    };
    for (const auto& [description, remainingDays, count, words, name] : rows) {
        AttendanceStatistics statistics;
        statistics.targetGoal = {std::make_shared<Goal>(QUuid(), QString(), description), 2.5};
        statistics.remainingDays = remainingDays;
        const MarkedText text = goalText(statistics);
        EXPECT_EQ(text, (MarkedText{{count, true}, {words, false}, {name, true}})) << name.toStdString();
        EXPECT_EQ(toPlainText(text), count + words + name);
    }
    EXPECT_EQ(markedText(u"100% **%2** of %1, %3%"_s, {u"%2"_s, u"a**b"_s}),
              (MarkedText{{u"100% "_s, false}, {u"a**b"_s, true}, {u" of %2, %3%"_s, false}}));
}
