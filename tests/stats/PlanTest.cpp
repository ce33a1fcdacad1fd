// SPDX-License-Identifier: GPL-3.0-or-later
#include "Month.h"
#include "PlanTexts.h"
#include "Testing.h"

using Rule = AttendanceRule;

namespace {

constexpr Qt::DayOfWeek monday = Qt::Monday;
const QDate today(2026, 11, 20); // a Friday, before which the person was in the office on the first days
const Counting noCounting;

QDate on(int day)
{
    return {2026, 11, day};
}

CountedDays november(int inOffice, const QList<int>& planned)
{
    const CountedDays days(
        {on(1), on(30)}, [=](QDate date) { return date.day() <= inOffice ? DayState::IN_OFFICE : DayState::UNKNOWN; },
        noCounting, false);
    TriedStates tried{{on(1), DayState::WILL_BE_IN_OFFICE}}; // which is not open
    for (const int day : planned)
        tried[on(day)] = DayState::WILL_BE_IN_OFFICE;
    return withTried(days, tried, noCounting, false);
}

} // namespace

TEST(Plan, saysWhatAGoalStillNeedsAsItsTrackerDoes)
{
    // Two days a week, which are nine in November.
    const std::tuple<int, QList<int>, const char*> rows[]{
        {5, {}, "**4** of the **7** free workdays left: about **3** a week"},
        {5, {23, 24}, "**2** of the **5** free workdays left: about **1** a week"},
        {5, {20, 30, 28}, "**1** of the **5** free workdays left"},
        {5, {23, 24, 25, 26}, "The planned days are enough"},
        {5, {23, 24, 25, 26, 27}, "**1** more day is planned than needed"},
        {8, {}, "**1** of the **7** free workdays left: about **1** a week"},
        {9, {}, "No more days are needed"},
        {10, {24}, "**1** more day is planned than needed"},
        {1, {23}, "Even with all **7** workdays left it is **1** short"},
    };
    const auto goal = Goal::create(u"2"_s, {});
    for (const auto& [inOffice, planned, expected] : rows) {
        const CountedDays days = november(inOffice, planned);
        Month month(2026, 11);
        QList<Day> cells = month.days;
        for (Day& cell : cells)
            cell.state = cell.isInMonth() ? days.in({on(int(cell.id)), on(int(cell.id))}).front().state : cell.state;
        month.days = cells;
        const auto statistics = attendanceStatistics({&month}, {goal, Goal::create(u"1"_s, {})}, false, false);
        const ValuedGoal planFor = statistics.validGoals.first();
        const RuleProgress progress = goalProgress(planFor, statistics, days, today);
        EXPECT_EQ(progress.remaining(), statistics.targetGoal->value == 2 ? statistics.remainingDays : 9 - inOffice);
        EXPECT_EQ(progress.planned, planned.size());
        const PlanPace pace = planPace(progress, planWeeks(days, days.span(), Weekdays::all(), today, monday));
        EXPECT_EQ(toMarkdown(planText({}, progress, pace, today)), QLatin1StringView(expected)) << expected;
        EXPECT_EQ(goalsToPlan(statistics).size(), inOffice >= 5 ? 1 : 2) << inOffice;
    }
}

TEST(Plan, saysWhatARuleStillNeedsOrAllows)
{
    const Rule fridays{.amount = 200, .unit = Rule::Unit::Days, .weekdays = Weekdays(0b10000)};
    const Rule atMost{.bound = Rule::Bound::AtMost, .amount = 700, .unit = Rule::Unit::Days};
    Rule outside = atMost;
    outside.subject = Rule::Subject::OutOfOffice;
    Rule abroad = outside;
    abroad.absenceKind = 1;
    outside.amount = 500;
    const std::tuple<Rule, QList<int>, QDate, const char*> rows[]{
        {fridays, {}, today, "**1** of the **2** free workdays left: about **1** a week"},
        {fridays, {20}, on(21), "The **1** free workday left is needed"},
        {fridays, {}, on(28), "No workday is left to plan"},
        {fridays, {}, on(30).addDays(1), ""},
        {atMost, {20}, today, "No more days are allowed besides the planned ones"},
        {atMost, {}, today, "**1** more day is allowed"},
        {atMost, {20, 23, 24}, today, "**2** more days are planned than allowed"},
        {outside, {}, today, "**5** of the **7** workdays left may be out of office"},
        {outside, {}, on(28), ""},
        {abroad, {}, today, ""},
    };
    for (const auto& [rule, planned, day, expected] : rows) {
        const CountedDays days = november(6, planned);
        const auto progress = ruleProgress(rule, days, on(30), day, monday);
        const auto weeks = planWeeks(days, progress->span, rule.weekdays, day, monday);
        EXPECT_EQ(toMarkdown(planText(rule, *progress, planPace(*progress, weeks), day)), QLatin1StringView(expected))
            << expected;
    }
}

TEST(Plan, proposesFreeUsualDaysAndShowsTheWeeksToCome)
{
    const CountedDays days = november(0, {24});
    EXPECT_EQ(daysToPlan(days, Weekdays(0b1010010), today), (QList{on(20), on(27)})); // Tuesday, Friday and Sunday
    const auto weeks = planWeeks(days, days.span(), Weekdays(0b11), today, monday);
    EXPECT_EQ(weeks,
              (QList<PlanWeek>{{{on(16), on(22)}, 0}, {{on(23), on(29)}, 1}, {{on(30), QDate(2026, 12, 6)}, 1}}));
}
