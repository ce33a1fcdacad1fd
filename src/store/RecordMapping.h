// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Row.h"

#include "AppSettings.h"
#include "Month.h"

#include <functional>
#include <memory>
#include <vector>

/// How each kind of record is laid out in its table, turned into a row and back, and followed for changes. `record`
/// throws a StoreError when the row holds what no record of that kind can.

using Followers = std::vector<QPropertyNotifier>;

struct MonthMapping {
    using Record = Month;
    static const TableLayout layout;

    [[nodiscard]] static Row row(const Month& month);
    [[nodiscard]] static std::shared_ptr<Month> record(const Row& row);
    [[nodiscard]] static Followers follow(Month& month, const std::function<void()>& changed);
};

struct GoalMapping {
    using Record = Goal;
    static const TableLayout layout;

    [[nodiscard]] static Row row(const Goal& goal);
    [[nodiscard]] static std::shared_ptr<Goal> record(const Row& row);
    [[nodiscard]] static Followers follow(Goal& goal, const std::function<void()>& changed);
};

/// Settings name their goals by identity; the goals are records of their own.
struct SettingsMapping {
    using Record = AppSettings;
    static const TableLayout layout;

    [[nodiscard]] static Row row(const AppSettings& settings);
    [[nodiscard]] std::shared_ptr<AppSettings> record(const Row& row) const;
    [[nodiscard]] static Followers follow(AppSettings& settings, const std::function<void()>& changed);

    std::function<AppSettings::Goals()> storedGoals;
};
