// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CalendarTest.h"
#include "CalendarView.h"

/// A shown month that begins on a Sunday.
class CalendarViewTest : public CalendarTest {
protected:
    static constexpr int friday = 20;
    static constexpr int saturday = 21;

    CalendarViewTest()
    {
        view.setMonth(november);
        show(view);
    }

    [[nodiscard]] DayState state(int day) const { return stateIn(*november, day); }
    [[nodiscard]] DayState stateOnDisk(int day) const
    {
        return stateIn(*ModelContainer({.name = {}, .path = path}).mainContext().fetchMonths(2026, 11).at(0), day);
    }
    [[nodiscard]] static DayState stateIn(const Month& month, int day)
    {
        return month.days.value().at(*month.indexOf(day)).state;
    }

    /// What is painted at the top of a button's face, in the middle.
    [[nodiscard]] static QColor painted(CommandClickableButton& button, int belowTop)
    {
        const QRect face = button.face();
        return button.grab().toImage().pixelColor(face.center().x(), face.top() + belowTop);
    }

    const std::shared_ptr<Month> november = month(2026, 11);
    CalendarView view{context, viewSettings, clock};
};
