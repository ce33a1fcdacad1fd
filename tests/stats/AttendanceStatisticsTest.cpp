// SPDX-License-Identifier: GPL-3.0-or-later
#include "AttendanceStatistics.h"
#include "Marking.h"
#include "StatisticsTexts.h"
#include "Testing.h"

#include <limits>

using testing::FieldsAre;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double noNumber = std::numeric_limits<double>::quiet_NaN();

void markDays(Month& month, int first, int count, DayState state)
{
    for (int day = first; day < first + count; ++day)
        mark(month, day, state);
}

AppSettings::Goals goalsWith(const QStringList& texts)
{
    AppSettings::Goals goals;
    for (const QString& text : texts)
        goals.append(std::make_shared<Goal>(QUuid(), text, QString()));
    return goals;
}

} // namespace

// In 2026 February has 20 workdays, April 22 and May 21.
TEST(AttendanceStatistics, countAndAverage)
{
    const struct {
        int month, inOffice, onVacation, planned;
        bool vacationCounts, plannedShown;
        double average, prediction;
    } rows[]{{4, 10, 2, 3, false, true, 10 / 22.0 * 5, 13 / 22.0 * 5},
             {4, 10, 2, 3, true, true, 12 / 22.0 * 5, 15 / 22.0 * 5},
             {2, 10, 0, 3, false, false, 2.5, 0}};
    for (const auto& row : rows) {
        SCOPED_TRACE(&row - rows);
        Month month(2026, row.month);
        markDays(month, 1, row.inOffice, DayState::IN_OFFICE);
        markDays(month, 21, row.onVacation, DayState::VACATION_DAY);
        markDays(month, 25, row.planned, DayState::WILL_BE_IN_OFFICE);
        const auto statistics = attendanceStatistics({&month}, {}, row.vacationCounts, row.plannedShown);
        EXPECT_DOUBLE_EQ(statistics.average, row.average);
        EXPECT_DOUBLE_EQ(statistics.prediction, row.prediction);
    }
}

TEST(AttendanceStatistics, addUpMonthsWithTheirFillerCells)
{
    Month january(2026, 1), february(2026, 2), march(2026, 3);
    mark(january, 0, DayState::IN_OFFICE);
    mark(january, -1, DayState::WILL_BE_IN_OFFICE);
    mark(march, 31, DayState::WILL_BE_IN_OFFICE);
    const auto statistics = attendanceStatistics({&january, &february, &march}, {}, false, true);
    EXPECT_THAT((std::tuple(statistics.workdays, statistics.inOffice, statistics.planned)), FieldsAre(64, 1, 2));
}

// A choice without effect on a month takes the other way to the same figures.
TEST(AttendanceStatistics, followWhatCountsAndOtherwiseStayTheSame)
{
    Month month(2026, 4);
    for (int day = -3; day <= 30; ++day)
        mark(month, day, allDayStates.at(static_cast<std::size_t>(day + 3) % 5));
    markDays(month, 6, 5, DayState::VACATION_DAY);
    const auto figures = [&](const Counting& counting, bool vacationCounts) {
        const auto statistics = attendanceStatistics({&month}, goalsWith({u"3"_s}), vacationCounts, true, counting);
        return std::tuple(statistics.workdays, statistics.inOffice, statistics.planned, statistics.remainingDays);
    };
    const Counting other({.daysOff = {{QDate(2027, 4, 5)}}, .kinds = {{AbsenceKind::sick}}});
    for (const bool vacationCounts : {false, true})
        EXPECT_EQ(figures(other, vacationCounts), figures(Counting({.kinds = {{AbsenceKind::sick}}}), vacationCounts));
    // Of 22 workdays those from 6 to 10 April, 15, 20 and 30 April are vacation.
    EXPECT_EQ(std::get<0>(figures(Counting({.leavesOutVacation = true}), false)), 14);
}

TEST(AttendanceStatistics, targetIsTheNextGoalOrElseTheLast)
{
    // Month, days in the office, goals; index of the target, or -1; highest value; text.
    const std::tuple<int, int, QStringList, qsizetype, double, QString> rows[]{
        {2, 10, {u"2"_s, u"3"_s, u"abc"_s}, 1, 3, u"**2 more days** to reach **3.00/5**"_s},
        {2, 14, {u"3"_s, u"2"_s}, 1, 3, u"**0 more days** to reach **2.00/5**"_s},
        {5, 9, {u"3"_s}, 0, 3, u"**4 more days** to reach **3.00/5**"_s},
        {2, 10, {u"4"_s, u"2.5"_s, u"3.00"_s, u"3"_s}, 2, 4, u"**2 more days** to reach **3.00/5**"_s},
        {2, 20, {u"-1e300"_s, u"-1"_s}, 1, -1, u"**0 more days** to reach **-1.00/5**"_s},
        {2, 0, {u"1e15"_s}, 0, 1e15, u"**4000000000000000 more days** to reach **1000000000000000.00/5**"_s},
        {2, 3, {u"1e300"_s, u""_s, u" 3"_s, u"inf"_s, u"nan"_s}, -1, 0, {}},
    };
    for (const auto& [number, inOffice, texts, target, highest, line] : rows) {
        SCOPED_TRACE(texts.join(u';').toStdString());
        const auto goals = goalsWith(texts);
        Month month(2026, number);
        markDays(month, 1, inOffice, DayState::IN_OFFICE);
        const auto statistics = attendanceStatistics({&month}, goals, false, true);
        EXPECT_EQ(statistics.targetGoal ? goals.indexOf(statistics.targetGoal->goal) : -1, target);
        EXPECT_EQ(statistics.highestGoalValue, highest);
        EXPECT_EQ(toMarkdown(goalText(statistics)), line);
    }
}

TEST(AttendanceStatistics, periodWithoutWorkdaysIsShownAsNothingReached)
{
    for (const DayState state : {DayState::UNKNOWN, DayState::IN_OFFICE}) {
        Month month;
        month.days = {{.id = 1, .state = state}};
        const auto statistics = attendanceStatistics({&month}, goalsWith({u"3"_s}), false, true);
        EXPECT_EQ(averageText(shownAverage(statistics)), u"You've reached 0.00 average days in office per week"_s);
        EXPECT_EQ(statistics.remainingDays, -month.inOfficeCount(false));
    }
}

TEST(AttendanceStatistics, standOnABarThatEndsAtTheHighestGoal)
{
    // Average, prediction, goals; progress, prediction and markers on the bar.
    const std::tuple<double, double, QStringList, QList<double>> rows[]{
        {2.5, 3.25, {u"2"_s, u"abc"_s, u"3"_s}, {2.5 / 3, 1, 2 / 3.0, 1}},
        {1, 2, {u"-1"_s, u"4"_s}, {0.25, 0.5, 0, 1}},
        {noNumber, infinity, {u"2"_s}, {0, 1, 1}},
        {2.5, 0, {}, {1, 0}}};
    for (const auto& [average, prediction, goals, expected] : rows) {
        auto statistics = attendanceStatistics({}, goalsWith(goals), false, true);
        statistics.average = average;
        statistics.prediction = prediction;
        const auto fractions = barFractions(statistics);
        EXPECT_THAT((QList{fractions.progress, fractions.prediction} + fractions.markers),
                    testing::Pointwise(testing::DoubleEq(), expected));
    }
}

TEST(AttendanceStatisticsDeathTest, neededDaysAreRoundedUpOrStopTheProgram)
{
    EXPECT_EQ(neededDays(-4, 21), -16);
    for (const double value : {-1e300, 0x1p63, noNumber})
        EXPECT_DEATH(static_cast<void>(neededDays(value, 5)), "more days than can be counted") << value;
}
