// SPDX-License-Identifier: GPL-3.0-or-later
#include "Theme.h"
#include "StateMark.h"

#include <QPainter>

#include <gmock/gmock.h>

#include <cmath>

namespace {

// WCAG 2.1: "relative luminance", 0 to 1, and "contrast ratio", 1 to 21.
double relativeLuminance(const QColor& color)
{
    const auto linear = [](double channel) {
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrastRatio(const QColor& a, const QColor& b)
{
    const double first = relativeLuminance(a) + 0.05;
    const double second = relativeLuminance(b) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

} // namespace

TEST(ThemeTest, whatIsReadStandsOutFromItsGround)
{
    EXPECT_NEAR(contrastRatio(Qt::black, Qt::white), 21.0, 0.01);
    const std::pair<Look, double> rows[]{{{ColorScheme::Light}, 4.5},
                                         {{ColorScheme::Dark}, 4.5},
                                         {{ColorScheme::Light, Contrast::High}, 7.0},
                                         {{ColorScheme::Dark, Contrast::High}, 7.0}};
    for (const auto& [look, least] : rows) {
        const Theme& theme = themeFor(look);
        QList<QColor> grounds{theme.progress, theme.prediction, theme.progressTrack};
        for (const DayState state : allDayStates)
            grounds += {dayColor(theme, {1, state, true}), dayColor(theme, {1, state, false})};
        for (const QColor& ground : grounds)
            EXPECT_GE(contrastRatio(readableTextOn(ground), ground), least) << ground.name().toStdString();
        for (const QColor& text : {theme.text, theme.dimText, theme.accent, theme.progressText, theme.predictionText})
            EXPECT_GE(contrastRatio(text, theme.card), least) << text.name().toStdString();
        for (const QColor& ground : {theme.hoverLabel, theme.fill})
            EXPECT_GE(contrastRatio(Qt::white, ground), least);
        EXPECT_GE(contrastRatio(theme.controlBorder, theme.card), 3.0);
        QPalette palette = paletteFor(look);
        EXPECT_EQ(lookOf(palette), look);
        palette.setCurrentColorGroup(QPalette::Disabled);
        EXPECT_EQ(lookOf(palette), look) << "of what is disabled too";
    }
    for (const QColor& full :
         {themeFor({ColorScheme::Dark, Contrast::High}).text, themeFor({ColorScheme::Dark, Contrast::High}).border,
          themeFor({ColorScheme::Dark, Contrast::High}).outline})
        EXPECT_EQ(full, QColor(Qt::white));
}

TEST(StateMarkTest, tellsStatesApartWithoutColour)
{
    QList<QImage> marks;
    for (const DayState state : allDayStates) {
        QImage mark(6, 6, QImage::Format_Grayscale8);
        mark.fill(Qt::white);
        QPainter painter(&mark);
        painter.setRenderHint(QPainter::Antialiasing);
        drawStateMark(painter, mark.rect(), state, Qt::black);
        marks.append(mark);
    }
    const auto darkness = [](const QImage& a, const QImage& b) {
        int sum = 0;
        for (int i = 0; i < 36; ++i)
            sum += std::abs(qGray(a.pixel(i % 6, i / 6)) - qGray(b.pixel(i % 6, i / 6)));
        return sum / 255;
    };
    for (qsizetype i = 0; i < marks.size(); ++i) {
        for (qsizetype j = 0; j < i; ++j)
            EXPECT_GE(darkness(marks.at(i), marks.at(j)), 6) << i << ' ' << j; // pixels of 36
    }
}
