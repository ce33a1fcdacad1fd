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

    [[nodiscard]] DayState state(int day) const { return dayIn(*november, day).state; }
    [[nodiscard]] Day dayOnDisk(int day) const
    {
        return dayIn(*ModelContainer({.name = {}, .path = path}).mainContext().fetchMonths(2026, 11).at(0), day);
    }

    /// What is painted in the middle of a button, so far below the top of its face.
    [[nodiscard]] static QColor painted(CommandClickableButton& button, int belowTop)
    {
        const QRect face = button.face();
        return button.grab().toImage().pixelColor(face.center().x(), face.top() + belowTop);
    }

    [[nodiscard]] static Day dayIn(const Month& month, int day) { return month.days.value().at(*month.indexOf(day)); }

    const std::shared_ptr<Month> november = month(2026, 11);
    CalendarView view{context, viewSettings, clock};
};
