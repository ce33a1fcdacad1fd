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

    [[nodiscard]] Day dayOnDisk(int day) const
    {
        ModelContainer reread({.name = {}, .path = path});
        return reread.mainContext().fetchMonths(2026, 11).first()->days.value().at(day - 1);
    }

    /// What is painted in the middle of a button, so far below the top of its face.
    [[nodiscard]] static QColor painted(CommandClickableButton& button, int belowTop)
    {
        return button.grab().toImage().pixelColor(button.face().center().x(), button.face().top() + belowTop);
    }

    const std::shared_ptr<Month> november = month(2026, 11);
    CalendarView view{calendarParts};
};
