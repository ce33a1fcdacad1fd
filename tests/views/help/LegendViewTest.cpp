// SPDX-License-Identifier: GPL-3.0-or-later
#include "LegendView.h"
#include "CalendarTest.h"

#include <QGridLayout>

class LegendViewTest : public CalendarTest {};

TEST_F(LegendViewTest, showsTheColoursOfTheCalendarWithTheirNames)
{
    LegendView legend(viewSettings);
    show(legend);
    const auto& grid = *qobject_cast<QGridLayout*>(legend.layout());
    const auto expectRow = [&](int row, const QString& text, const Day& day) {
        EXPECT_EQ(grid.itemAtPosition(row, 2)->widget()->property("text"), text);
        const QImage swatch = grid.itemAtPosition(row, 0)->widget()->grab().toImage();
        EXPECT_EQ(swatch.pixelColor(3, 10), dayColor(themeFor(ColorScheme::Light), day));
        EXPECT_EQ(hasMark(swatch.copy(8, 4, 12, 13)), day.state != DayState::UNKNOWN);
    };
    int row = 0;
    for (const DayState state : allDayStates)
        expectRow(++row, description(state), {1, state, true});
    expectRow(++row, u"Weekend Day"_s, {1});
}
