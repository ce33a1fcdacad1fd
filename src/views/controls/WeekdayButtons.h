// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Weekdays.h"

#include <QWidget>

#include <array>

class QAbstractButton;

/// A button for each day of the week, in the order of the locale, to choose several.
class WeekdayButtons : public QWidget {
    Q_OBJECT

public:
    explicit WeekdayButtons(QWidget* parent = nullptr);

    [[nodiscard]] Weekdays weekdays() const;
    void setWeekdays(Weekdays weekdays);

Q_SIGNALS:
    /// A person has chosen a day, or no longer.
    void chosen();

private:
    /// From Monday to Sunday.
    std::array<QAbstractButton*, 7> m_buttons{};
};
