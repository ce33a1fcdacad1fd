// SPDX-License-Identifier: GPL-3.0-or-later
#include "AppSettings.h"

#include <algorithm>

using namespace Qt::StringLiterals;

const AppSettings::Goals& AppSettings::defaultGoals()
{
    //: Descriptions of the goals that everyone starts with. The person can change them.
    static const Goals goals{
        Goal::create(u"2.00"_s, tr("not fired")),
        Goal::create(u"3.00"_s, tr("no probation")),
        Goal::create(u"4.00"_s, tr("ideal")),
    };
    return goals;
}

bool AppSettings::addGoal(const QString& daysPerWeek)
{
    const auto added = Goal::create(daysPerWeek, {});
    if (!added)
        return false;
    Goals goals = daysPerWeekGoals;
    const auto isEqual = [&added](const auto& goal) { return goal->wantedDaysPerWeek == added->wantedDaysPerWeek; };
    if (std::ranges::any_of(goals, isEqual))
        return true;
    goals.append(added);
    std::ranges::stable_sort(goals, {}, [](const auto& goal) { return goal->value().value_or(0.0); });
    daysPerWeekGoals = goals;
    return true;
}

void AppSettings::removeGoal(const Goal& goal)
{
    Goals goals = daysPerWeekGoals;
    goals.removeIf([&goal](const auto& candidate) { return candidate.get() == &goal; });
    daysPerWeekGoals = goals;
}
