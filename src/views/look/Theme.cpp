// SPDX-License-Identifier: GPL-3.0-or-later
#include "Theme.h"

#include <algorithm>
#include <cstdlib>

namespace {

// QColor(QRgb) is not constexpr.
constexpr QColor rgb(QRgb color)
{
    return {qRed(color), qGreen(color), qBlue(color)};
}

constexpr QColor nearBlack = rgb(0x202124);
constexpr QColor black = rgb(0x000000);
constexpr QColor white = rgb(0xffffff);
constexpr QColor transparent(0, 0, 0, 0);

constexpr Theme light{
    .page = rgb(0xf6f6f7),
    .card = rgb(0xffffff),
    .border = rgb(0xe2e2e5),
    .text = rgb(0x202124),
    .dimText = rgb(0x5f6065),
    .disabledText = rgb(0x5f6065),
    .accent = rgb(0x175fcf),
    .fill = rgb(0x175fcf),
    .errorText = rgb(0xb3261e),
    .field = rgb(0xffffff),
    .controlBorder = rgb(0x8b8d94),
    .outline = transparent,
    .pressed = rgb(0xe2e2e5),
    .trough = rgb(0xe4e4e8),
    .selected = rgb(0xffffff),
    .progressTrack = rgb(0xe4e4e8),
    .progress = rgb(0x1a7f37),
    .progressText = rgb(0x1a7f37),
    .prediction = rgb(0xf5c518),
    .predictionText = rgb(0x9a6700),
    .hoverLabel = rgb(0x55585e),
    .unknown = rgb(0x1f6feb),
    .inOffice = rgb(0x1a7f37),
    .outOfOffice = rgb(0xd1242f),
    .vacationDay = rgb(0x8250df),
    .willBeInOffice = rgb(0xf5c518),
    .nonWorkday = rgb(0xb9bcc2),
};

constexpr Theme dark{
    .page = rgb(0x1e1f22),
    .card = rgb(0x27282c),
    .border = rgb(0x3a3b40),
    .text = rgb(0xf2f2f4),
    .dimText = rgb(0xa4a6ac),
    .disabledText = rgb(0xa4a6ac),
    .accent = rgb(0x5b9bff),
    .fill = rgb(0x1f6be0),
    .errorText = rgb(0xff8a80),
    .field = rgb(0x1e1f22),
    .controlBorder = rgb(0x74767d),
    .outline = transparent,
    .pressed = rgb(0x3a3b40),
    .trough = rgb(0x33343a),
    .selected = rgb(0x4a4c53),
    .progressTrack = rgb(0x3a3b41),
    .progress = rgb(0x22853f),
    .progressText = rgb(0x45b868),
    .prediction = rgb(0xf2c94c),
    .predictionText = rgb(0xf2c94c),
    .hoverLabel = rgb(0x5f6268),
    .unknown = rgb(0x2a72e2),
    .inOffice = rgb(0x22853f),
    .outOfOffice = rgb(0xd9363c),
    .vacationDay = rgb(0x8a57e4),
    .willBeInOffice = rgb(0xf2c94c),
    .nonWorkday = rgb(0x5b5e66),
};

constexpr Theme contrastingLight{
    .page = white,
    .card = white,
    .border = black,
    .text = black,
    .dimText = black,
    .disabledText = rgb(0x6a6b70),
    .accent = rgb(0x003a9b),
    .fill = rgb(0x003a9b),
    .errorText = rgb(0x8c0009),
    .field = white,
    .controlBorder = black,
    .outline = black,
    .pressed = rgb(0xc8cacf),
    .trough = rgb(0xe4e4e8),
    .selected = white,
    .progressTrack = white,
    .progress = rgb(0x0b5a22),
    .progressText = rgb(0x0b5a22),
    .prediction = rgb(0xf5c518),
    .predictionText = rgb(0x5c3d00),
    .hoverLabel = black,
    .unknown = rgb(0x0a47b0),
    .inOffice = rgb(0x0b5a22),
    .outOfOffice = rgb(0xa30d18),
    .vacationDay = rgb(0x5c2db3),
    .willBeInOffice = rgb(0xf5c518),
    .nonWorkday = rgb(0xc8cacf),
};

constexpr Theme contrastingDark{
    .page = black,
    .card = black,
    .border = white,
    .text = white,
    .dimText = white,
    .disabledText = rgb(0x909299),
    .accent = rgb(0x8ab8ff),
    .fill = rgb(0x1552b8),
    .errorText = rgb(0xffb4ab),
    .field = black,
    .controlBorder = white,
    .outline = white,
    .pressed = rgb(0x4a4c53),
    .trough = rgb(0x303136),
    .selected = black,
    .progressTrack = black,
    .progress = rgb(0x5ed47e),
    .progressText = rgb(0x5ed47e),
    .prediction = rgb(0xf7d35e),
    .predictionText = rgb(0xf7d35e),
    .hoverLabel = black,
    .unknown = rgb(0x7fb2ff),
    .inOffice = rgb(0x5ed47e),
    .outOfOffice = rgb(0xff9a94),
    .vacationDay = rgb(0xcbb0ff),
    .willBeInOffice = rgb(0xf7d35e),
    .nonWorkday = rgb(0xaeb1b8),
};

} // namespace

const Theme& themeFor(const Look& look)
{
    const bool isDark = look.scheme == ColorScheme::Dark;
    if (look.contrast == Contrast::High)
        return isDark ? contrastingDark : contrastingLight;
    return isDark ? dark : light;
}

const Theme& themeFor(const QPalette& palette)
{
    return themeFor(lookOf(palette));
}

Look lookOf(const QPalette& palette)
{
    // Usual palettes stay below, Qt's own with 239.
    constexpr int highDistance = 250;
    // Of the active group, since the text of what is disabled stands out less.
    const auto lightness = [&palette](QPalette::ColorRole role) {
        return palette.color(QPalette::Active, role).lightness();
    };
    const int distance = lightness(QPalette::WindowText) - lightness(QPalette::Window);
    return {distance > 0 ? ColorScheme::Dark : ColorScheme::Light,
            std::abs(distance) >= highDistance ? Contrast::High : Contrast::Normal};
}

QPalette paletteFor(const Look& look)
{
    const Theme& theme = themeFor(look);
    QPalette palette(theme.trough, theme.page);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        palette.setColor(role, theme.text);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, theme.disabledText);
    palette.setColor(QPalette::Window, theme.page);
    palette.setColor(QPalette::Base, theme.card);
    palette.setColor(QPalette::AlternateBase, theme.page);
    palette.setColor(QPalette::ToolTipBase, theme.card);
    palette.setColor(QPalette::PlaceholderText, theme.dimText);
    palette.setColor(QPalette::Link, theme.accent);
    palette.setColor(QPalette::BrightText, theme.errorText);
    palette.setColor(QPalette::Highlight, theme.fill);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

QColor dayColor(const Theme& theme, const Day& day)
{
    switch (day.state) {
    case DayState::UNKNOWN:
        return day.isWorkday ? theme.unknown : theme.nonWorkday;
    case DayState::IN_OFFICE:
        return theme.inOffice;
    case DayState::OUT_OF_OFFICE:
        return theme.outOfOffice;
    case DayState::VACATION_DAY:
        return theme.vacationDay;
    case DayState::WILL_BE_IN_OFFICE:
        return theme.willBeInOffice;
    }
    Q_UNREACHABLE();
}

QColor readableTextOn(const QColor& background)
{
    // Squares come near enough to the curve of sRGB, for which pow() and its tables would have to be loaded.
    const auto square = [](float channel) { return channel * channel; };
    const float luminance = 0.2126F * square(background.redF()) + 0.7152F * square(background.greenF()) +
                            0.0722F * square(background.blueF());
    constexpr float sameContrast = 0.25F;
    return luminance > sameContrast ? nearBlack : white;
}
