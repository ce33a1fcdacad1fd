// SPDX-License-Identifier: GPL-3.0-or-later
#include "LegendView.h"
#include "CalendarTest.h"

#include <QGridLayout>

class LegendViewTest : public CalendarTest {};

TEST_F(LegendViewTest, showsTheStatesOfTheCalendarWithTheirKeys)
{
    LegendView legend(viewSettings);
    show(legend);
    const auto& grid = *legend.findChild<QGridLayout*>();
    const auto key = [&](int row, int column) {
        const auto* cap = grid.itemAtPosition(row, column);
        return cap == nullptr ? QString() : cap->widget()->accessibleName();
    };
    const auto expectRow = [&](int row, const QString& text, const Day& day, const QString& keys) {
        EXPECT_EQ(grid.itemAtPosition(row, 2)->widget()->property("text"), text);
        const QImage swatch = grid.itemAtPosition(row, 0)->widget()->grab().toImage();
        EXPECT_EQ(swatch.pixelColor(3, 10), dayColor(themeFor(Look()), day));
        EXPECT_EQ(hasMark(swatch.copy(8, 4, 12, 13)), day.state != DayState::UNKNOWN);
        EXPECT_EQ(key(row, 1) + key(row, 3), keys);
    };
    const QStringList keys{u"Ctrl1"_s, u"2"_s, u"3"_s, u"Shift4"_s, u"Alt5"_s};
    for (int i = 0; i < 5; ++i)
        expectRow(i + 1, description(allDayStates.at(i)), {1, allDayStates.at(i), true}, keys.at(i));
    expectRow(6, u"Weekend Day"_s, {1}, {});
    const auto swatch = [&](int row) { return grid.itemAtPosition(row, 0)->widget()->grab().toImage(); };
    EXPECT_NE(swatch(7), swatch(6));
    EXPECT_EQ(swatch(7).pixelColor(3, 10), swatch(6).pixelColor(3, 10)) << "within the outline of a day off";
}
