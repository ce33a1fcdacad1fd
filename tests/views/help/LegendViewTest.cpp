// SPDX-License-Identifier: GPL-3.0-or-later
#include "LegendView.h"
#include "CalendarTest.h"

#include <QGridLayout>
#include <QMap>

class LegendViewTest : public CalendarTest {};

TEST_F(LegendViewTest, showsTheColoursOfTheCalendarWithTheirNames)
{
    LegendView legend(viewSettings);
    show(legend);
    auto* grid = qobject_cast<QGridLayout*>(legend.layout());
    QMap<QString, QColor> found;
    for (int row = 0; row < grid->rowCount(); ++row) {
        const auto *swatch = grid->itemAtPosition(row, 0), *text = grid->itemAtPosition(row, 2);
        if (swatch != nullptr && text != nullptr && text->widget() != swatch->widget())
            found[text->widget()->property("text").toString()] = swatch->widget()->grab().toImage().pixelColor(14, 10);
    }
    const Theme& theme = themeFor(ColorScheme::Light);
    const std::pair<QString, QColor> rows[]{
        {u"Unknown"_s, theme.unknown},
        {u"In the Office"_s, theme.inOffice},
        {u"Out of Office"_s, theme.outOfOffice},
        {u"Vacation Day"_s, theme.vacationDay},
        {u"Will Be In Office"_s, theme.willBeInOffice},
        {u"Weekend Day"_s, theme.nonWorkday},
    };
    for (const auto& [text, colour] : rows)
        EXPECT_EQ(found.value(text), colour) << qPrintable(text);
}
