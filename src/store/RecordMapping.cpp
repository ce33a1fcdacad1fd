// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecordMapping.h"

#include "JsonLists.h"
#include "StoreError.h"

#include <algorithm>
#include <limits>

namespace {

constexpr Column monthColumns[]{
    {"year", ColumnType::Integer},          {"month", ColumnType::Integer}, {"name", ColumnType::Text},
    {"days_in_month", ColumnType::Integer}, {"days", ColumnType::Text},
};

constexpr Column goalColumns[]{
    {"id", ColumnType::Text},
    {"wanted_days_per_week", ColumnType::Text},
    {"description", ColumnType::Text},
};

constexpr Column settingsColumns[]{
    {"days_per_week_goals", ColumnType::Text},
    {"in_office_ssids", ColumnType::Text},
    {"first_time", ColumnType::Integer},
    {"wifi_tracking_enabled", ColumnType::Integer},
    {"vacation_days_count_as_in_office", ColumnType::Integer},
    {"notifications_enabled", ColumnType::Integer},
    {"check_every_in_minutes", ColumnType::Integer},
};

template <class... Properties> Followers followAll(const std::function<void()>& changed, Properties&... properties)
{
    Followers followers;
    followers.reserve(sizeof...(properties));
    (followers.push_back(properties.addNotifier(changed)), ...);
    return followers;
}

std::int64_t number(const Row& row, std::size_t column)
{
    return std::get<std::int64_t>(row.at(column));
}

int smallNumber(const Row& row, std::size_t column)
{
    const auto value = number(row, column);
    if (value < std::numeric_limits<int>::min() || value > std::numeric_limits<int>::max())
        throw StoreError(StoreError::tr("a number is out of range"));
    return static_cast<int>(value);
}

const std::string& text(const Row& row, std::size_t column)
{
    return std::get<std::string>(row.at(column));
}

QString string(const Row& row, std::size_t column)
{
    return QString::fromStdString(text(row, column));
}

std::shared_ptr<Goal> goalWithId(const AppSettings::Goals& goals, const QString& id)
{
    const QUuid uuid(id);
    const auto found = std::ranges::find_if(goals, [&](const auto& goal) { return goal->id == uuid; });
    if (found == goals.end())
        throw StoreError(StoreError::tr("the goal %1 is missing").arg(id));
    return *found;
}

} // namespace

const TableLayout MonthMapping::layout{"month", monthColumns};
const TableLayout GoalMapping::layout{"goal", goalColumns};
const TableLayout SettingsMapping::layout{"app_settings", settingsColumns};

Row MonthMapping::row(const Month& month)
{
    return {month.year, month.month, month.name.value().toStdString(), month.daysInMonth, encodedDays(month.days)};
}

std::shared_ptr<Month> MonthMapping::record(const Row& row)
{
    const QList<Day> days = decodedDays(text(row, 4));
    if (days.size() != Month::cellCount)
        throw StoreError(StoreError::tr("it has %1 cells instead of %2").arg(days.size()).arg(Month::cellCount));
    return std::make_shared<Month>(Month::Fields{.year = smallNumber(row, 0),
                                                 .month = smallNumber(row, 1),
                                                 .name = string(row, 2),
                                                 .daysInMonth = smallNumber(row, 3),
                                                 .days = days});
}

Followers MonthMapping::follow(Month& month, const std::function<void()>& changed)
{
    return followAll(changed, month.year, month.month, month.name, month.daysInMonth, month.days);
}

Row GoalMapping::row(const Goal& goal)
{
    return {goal.id.toString(QUuid::WithoutBraces).toStdString(), goal.wantedDaysPerWeek.value().toStdString(),
            goal.desc.value().toStdString()};
}

std::shared_ptr<Goal> GoalMapping::record(const Row& row)
{
    return std::make_shared<Goal>(QUuid(string(row, 0)), string(row, 1), string(row, 2));
}

Followers GoalMapping::follow(Goal& goal, const std::function<void()>& changed)
{
    return followAll(changed, goal.wantedDaysPerWeek, goal.desc);
}

Row SettingsMapping::row(const AppSettings& settings)
{
    QStringList goalIds;
    for (const auto& goal : settings.daysPerWeekGoals.value())
        goalIds.append(goal->id.toString(QUuid::WithoutBraces));
    return {encodedStrings(goalIds),
            encodedStrings(settings.inOfficeSsids),
            std::int64_t{settings.firstTime},
            std::int64_t{settings.wifiTrackingEnabled},
            std::int64_t{settings.vacationDaysCountAsInOffice},
            std::int64_t{settings.notificationsEnabled},
            std::int64_t{settings.checkEveryInMinutes}};
}

std::shared_ptr<AppSettings> SettingsMapping::record(const Row& row) const
{
    const AppSettings::Goals stored = storedGoals();
    AppSettings::Goals goals;
    for (const QString& id : decodedStrings(text(row, 0)))
        goals.append(goalWithId(stored, id));

    auto settings = std::make_shared<AppSettings>();
    settings->daysPerWeekGoals = goals;
    settings->inOfficeSsids = decodedStrings(text(row, 1));
    settings->firstTime = number(row, 2) != 0;
    settings->wifiTrackingEnabled = number(row, 3) != 0;
    settings->vacationDaysCountAsInOffice = number(row, 4) != 0;
    settings->notificationsEnabled = number(row, 5) != 0;
    settings->checkEveryInMinutes = number(row, 6);
    return settings;
}

Followers SettingsMapping::follow(AppSettings& settings, const std::function<void()>& changed)
{
    return followAll(changed, settings.daysPerWeekGoals, settings.inOfficeSsids, settings.firstTime,
                     settings.wifiTrackingEnabled, settings.vacationDaysCountAsInOffice, settings.notificationsEnabled,
                     settings.checkEveryInMinutes);
}
