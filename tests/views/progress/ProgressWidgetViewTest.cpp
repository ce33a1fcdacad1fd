// SPDX-License-Identifier: GPL-3.0-or-later
#include "ProgressWidgetView.h"
#include "CalendarTest.h"
#include "StatisticsTexts.h"

class ProgressWidgetViewTest : public CalendarTest {
protected:
    ProgressWidgetViewTest()
    {
        tracker.setMonths({november});
        show(tracker);
    }

    const std::shared_ptr<Month> november = month(2026, 11);
    ProgressWidgetView tracker{*settings, viewSettings, PeriodWord::Month};
};

TEST_F(ProgressWidgetViewTest, theWordsFollowEveryRecordAndSetting)
{
    Goal& first = *settings->daysPerWeekGoals.value().first();
    const std::tuple<std::function<void()>, int, QStringList> steps[]{
        {[&] { mark(*november, 20, DayState::IN_OFFICE); }, 1, {u"8 more days to reach goal not fired"_s}},
        {[&] { first.wantedDaysPerWeek = u"3.00"_s; }, 1, {u"12 more days to reach goal not fired"_s}},
        {[&] { first.desc = u"<b>a</b> **b** %1"_s; }, 1, {u"12 more days to reach goal <b>a</b> **b** %1"_s}},
        {[&] { first.desc = QString(); }, 1, {u"12 more days to reach 3.00/5"_s}},
        {[&] { mark(*november, 19, DayState::VACATION_DAY); }, 1, {u"12 more days to reach 3.00/5"_s}},
        {[&] { settings->vacationDaysCountAsInOffice = true; }, 2, {u"11 more days to reach 3.00/5"_s}},
        {[&] { settings->daysPerWeekGoals = AppSettings::Goals(); }, 2, {}},
    };
    for (const auto& [change, days, goal] : steps) {
        change();
        EXPECT_EQ(shownTexts(tracker), QStringList(u"%1 days in the office this month"_s.arg(days)) + goal);
    }
}

TEST_F(ProgressWidgetViewTest, theBarFollowsToo)
{
    for (int day = 2; day <= 6; ++day)
        mark(*november, day, DayState::IN_OFFICE);
    mark(*november, 20, DayState::WILL_BE_IN_OFFICE);
    const auto& bar = *tracker.findChild<MarkedProgressBar*>();
    const auto& shown = bar.contents();
    EXPECT_NEAR(shown.progress, 25.0 / 21 / 4, 1e-9);
    EXPECT_NEAR(shown.progressPrediction, 30.0 / 21 / 4, 1e-9);
    EXPECT_TRUE(bar.accessibleName().startsWith(averageText(25.0 / 21) + u"; 1.43 with the planned days; "_s));
    viewSettings.showWillBeInOfficeStats = false;
    EXPECT_EQ(shown.progressPrediction, 0.0);
    settings->daysPerWeekGoals.value().first()->wantedDaysPerWeek = u"1.00"_s;
    settings->daysPerWeekGoals.value().first()->desc = QString();
    EXPECT_EQ(shown.markers.at(0).position, 0.25);
    EXPECT_EQ(bar.accessibleName(), averageText(25.0 / 21) + u"; 1.00/5: reached; ideal: not reached"_s);
    applyScheme(ColorScheme::Dark);
    EXPECT_EQ(shown.progressColor, themeFor(Look{ColorScheme::Dark}).inOffice);
}
