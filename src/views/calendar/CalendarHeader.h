// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "GridOrder.h"

#include <QString>

#include <array>

class Month;
class QGridLayout;
class QLabel;

/// The name of a month, with its year if that is not the present one.
[[nodiscard]] QString calendarTitle(const Month& month, QDate today);

/// The first letters of the weekdays, from the first column on.
[[nodiscard]] std::array<QString, GridOrder::columns> weekdayLetters(Qt::DayOfWeek weekStart);

/// What stands above the days of a month: its name, the number of its workdays, and the weekdays.
class CalendarHeader {
public:
    /// How many rows of the grid it takes.
    static constexpr int rows = 3;

    /// Adds the labels to the grid, in the font of the widget of the grid.
    explicit CalendarHeader(QGridLayout& grid);

    void setName(const QString& name);
    void setWorkdays(qint64 workdays);
    void setWeekStart(Qt::DayOfWeek weekStart);

private:
    QLabel* m_name;
    QLabel* m_workdays;
    std::array<QLabel*, GridOrder::columns> m_weekdays{};
};
