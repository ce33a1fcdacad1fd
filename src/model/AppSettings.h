// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Goal.h"

#include <QCoreApplication>
#include <QList>
#include <QStringList>

/// What the person has set up. A store holds one such record.
class AppSettings {
    Q_DECLARE_TR_FUNCTIONS(AppSettings)

public:
    using Goals = QList<std::shared_ptr<Goal>>;

    AppSettings() = default;
    AppSettings(const AppSettings&) = delete;
    AppSettings& operator=(const AppSettings&) = delete;
    ~AppSettings() = default;

    /// The goals that a new record starts with, described in the person's language: built once per process and shared
    /// by every new record.
    [[nodiscard]] static const Goals& defaultGoals();

    /// Adds a goal without a description and sorts all goals by value. False, and nothing is changed, when the text is
    /// none that a Goal is created with; a goal that is in the list already is not added again.
    [[nodiscard]] bool addGoal(const QString& daysPerWeek);
    void removeGoal(const Goal& goal);

    QProperty<Goals> daysPerWeekGoals{defaultGoals()};
    /// Names of the Wi-Fi networks that stand for the office, as they were found or typed.
    QProperty<QStringList> inOfficeSsids;
    /// The first-run welcome has not been completed.
    QProperty<bool> firstTime{true};
    QProperty<bool> wifiTrackingEnabled{false};
    QProperty<bool> vacationDaysCountAsInOffice{false};
    QProperty<bool> notificationsEnabled{true};
    QProperty<qint64> checkEveryInMinutes{30};
};
