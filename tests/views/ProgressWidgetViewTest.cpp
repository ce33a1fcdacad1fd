// SPDX-License-Identifier: GPL-3.0-or-later
#include "ProgressWidgetView.h"
#include "CalendarViewTest.h"

class ProgressWidgetViewTest : public CalendarViewTest {
protected:
    ProgressWidgetViewTest()
    {
        tracker.setMonths({november});
        show(tracker);
    }

    ProgressWidgetView tracker{parts, PeriodWord::Month};
    MarkedProgressBar& bar = *tracker.findChild<MarkedProgressBar*>();
    Goal& first = *settings->daysPerWeekGoals.value().first();
};

TEST_F(ProgressWidgetViewTest, theWordsFollowEveryRecordAndSetting)
{
    const auto daysIn = [](int count) { return u"%1 days in the office this month"_s.arg(count); };
    const std::tuple<const char*, std::function<void()>, QStringList> steps[]{
        {"start", [] {}, {daysIn(0), u"9 more days to reach goal not fired"_s}},
        {"click", [&] { click(dayButton(view, 20)); }, {daysIn(1), u"8 more days to reach goal not fired"_s}},
        {"goal", [&] { first.wantedDaysPerWeek = u"3.00"_s; }, {daysIn(1), u"12 more days to reach goal not fired"_s}},
        {"markup",
         [&] { first.desc = u"<b>a</b> **b** %1"_s; },
         {daysIn(1), u"12 more days to reach goal <b>a</b> **b** %1"_s}},
        {"no words", [&] { first.desc = QString(); }, {daysIn(1), u"12 more days to reach 3.00/5"_s}},
        {"no number", [&] { first.wantedDaysPerWeek = u"x"_s; }, {daysIn(1), u"16 more days to reach goal ideal"_s}},
        {"vacation",
         [&] { click(dayButton(view, 19), Qt::ShiftModifier); },
         {daysIn(1), u"16 more days to reach goal ideal"_s}},
        {"vacation counts",
         [&] { settings->vacationDaysCountAsInOffice = true; },
         {daysIn(2), u"15 more days to reach goal ideal"_s}},
        {"no goals", [&] { settings->daysPerWeekGoals = AppSettings::Goals(); }, {daysIn(2)}},
    };
    for (const auto& [step, change, texts] : steps) {
        change();
        EXPECT_EQ(shownTexts(tracker), texts) << step;
    }
}

TEST_F(ProgressWidgetViewTest, theBarFollowsToo)
{
    for (int day = 2; day <= 6; ++day)
        mark(*november, day, DayState::IN_OFFICE);
    mark(*november, 20, DayState::WILL_BE_IN_OFFICE);
    const auto& shown = bar.contents();
    EXPECT_NEAR(shown.progress, 25.0 / 21 / 4, 1e-9);
    EXPECT_NEAR(shown.progressPrediction, 30.0 / 21 / 4, 1e-9);
    EXPECT_NEAR(shown.label.value(), 25.0 / 21, 1e-9);
    ASSERT_EQ(shown.markers.size(), 2);
    EXPECT_EQ(shown.markers.at(0).position, 0.5);
    EXPECT_EQ(shown.markers.at(1).position, 1.0);
    EXPECT_EQ(shown.markers.at(1).description, u"ideal"_s);
    EXPECT_EQ(bar.barRect().size(), QSize(375, 24));
    wear(ColorScheme::Dark);
    EXPECT_EQ(shown.progressColor, themeFor(ColorScheme::Dark).inOffice);
    viewSettings.showWillBeInOfficeStats = false;
    EXPECT_EQ(shown.progressPrediction, 0.0);
    settings->daysPerWeekGoals = AppSettings::Goals();
    EXPECT_EQ(shown.progress, 1.0);
}
