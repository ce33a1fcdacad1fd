// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "AppSettings.h"
#include "Counting.h"

#include <QList>

#include <optional>

class Month;

/// A goal whose text has a value, with that value in days per week.
struct ValuedGoal {
    std::shared_ptr<Goal> goal;
    double value = 0.0;
};

/// The figures of a period of one or more months. Averages are office days per week of five workdays:
/// days / workdays * 5. A period without workdays has no finite average.
struct AttendanceStatistics {
    qint64 workdays = 0;
    /// Days in the office, with vacation days if these count as such.
    qint64 inOffice = 0;
    qint64 planned = 0;
    double average = 0.0;
    /// The average with the planned days added; 0 if planned days are not shown.
    double prediction = 0.0;
    /// In list order.
    QList<ValuedGoal> validGoals;
    /// The smallest goal above the average, the first of equal ones; if all are reached, the last in the list.
    std::optional<ValuedGoal> targetGoal;
    double highestGoalValue = 0.0;
    /// Office days that the target goal still needs; negative if it is exceeded, 0 without a target.
    qint64 remainingDays = 0;
};

[[nodiscard]] AttendanceStatistics attendanceStatistics(const QList<const Month*>& months,
                                                        const AppSettings::Goals& daysPerWeekGoals,
                                                        bool vacationDaysCountAsInOffice, bool showWillBeInOfficeStats,
                                                        const Counting& counting = {});

/// The workdays of a month as they count: without days off, and without what is left out.
[[nodiscard]] qint64 workdayCount(const Month& month, const Counting& counting);

/// The office days that an average of `value` days per week needs in a period: value * workdays / 5, rounded up. A
/// result beyond 64 bits stops the program.
[[nodiscard]] qint64 neededDays(double value, qint64 workdays);

/// Positions on a progress bar that ends at the highest goal, as fractions from 0 to 1 of its width.
struct BarFractions {
    double progress = 0.0;
    double prediction = 0.0;
    /// One per valid goal, in the same order.
    QList<double> markers;
};

[[nodiscard]] BarFractions barFractions(const AttendanceStatistics& statistics);

/// The average as it is shown: 0 if the period has no finite one.
[[nodiscard]] double shownAverage(const AttendanceStatistics& statistics);
