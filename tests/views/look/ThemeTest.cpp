// SPDX-License-Identifier: GPL-3.0-or-later
#include "Theme.h"
#include "DayState.h"

#include <gmock/gmock.h>

TEST(ThemeTest, whatIsReadStandsOutFromItsGround)
{
    EXPECT_NEAR(contrastRatio(Qt::black, Qt::white), 21.0, 0.01);
    for (const auto& [scheme, least] : {std::pair(ColorScheme::Light, 4.5), std::pair(ColorScheme::Dark, 4.0)}) {
        const Theme& theme = themeFor(scheme);
        QList<QColor> grounds{theme.progress, theme.prediction, theme.progressTrack};
        for (const DayState state : allDayStates)
            grounds += {dayColor(theme, {1, state, true}), dayColor(theme, {1, state, false})};
        for (const QColor& ground : grounds)
            EXPECT_GE(contrastRatio(readableTextOn(ground), ground), least) << ground.name().toStdString();
        for (const QColor& text : {theme.text, theme.dimText, theme.accent, theme.progressText, theme.predictionText})
            EXPECT_GE(contrastRatio(text, theme.card), least) << text.name().toStdString();
        EXPECT_GE(contrastRatio(Qt::white, theme.hoverLabel), least);
        EXPECT_EQ(colorSchemeOf(paletteFor(scheme)), scheme);
    }
}
