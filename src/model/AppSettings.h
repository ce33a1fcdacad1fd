// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Goal.h"

#include <QCoreApplication>
#include <QList>
#include <QStringList>

/// The person's settings. A store holds one such record.
class AppSettings {
    Q_DECLARE_TR_FUNCTIONS(AppSettings)

public:
    using Goals = QList<std::shared_ptr<Goal>>;

    AppSettings() = default;
    AppSettings(const AppSettings&) = delete;
    AppSettings& operator=(const AppSettings&) = delete;
    ~AppSettings() = default;

    /// The goals of a new record, described in the person's language. Built once per process and shared by all new
    /// records.
    [[nodiscard]] static const Goals& defaultGoals();

    /// Adds a goal without a description and sorts all goals by value. False, with nothing changed, if no goal can be
    /// created from the text. A goal that is in the list already is not added again.
    [[nodiscard]] bool addGoal(const QString& daysPerWeek);
    void removeGoal(const Goal& goal);

    QProperty<Goals> daysPerWeekGoals{defaultGoals()};
    /// Names of the office's Wi-Fi networks, as they were found or typed.
    QProperty<QStringList> inOfficeSsids;
    /// The welcome of the first run has not been completed.
    QProperty<bool> firstTime{true};
    QProperty<bool> wifiTrackingEnabled{false};
    QProperty<bool> vacationDaysCountAsInOffice{false};
    QProperty<bool> notificationsEnabled{true};
    QProperty<qint64> checkEveryInMinutes{30};
};
