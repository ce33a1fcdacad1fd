// SPDX-License-Identifier: GPL-3.0-or-later
#include "Theme.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr QRgb nearBlack = 0xff202124;
constexpr QRgb white = 0xffffffff;

const Theme light{
    .page = 0xfff6f6f7,
    .card = 0xffffffff,
    .border = 0xffe2e2e5,
    .text = 0xff202124,
    .dimText = 0xff5f6065,
    .accent = 0xff175fcf,
    .errorText = 0xffb3261e,
    .field = 0xffffffff,
    .fieldBorder = 0xff8b8d94,
    .trough = 0xffe4e4e8,
    .chosen = 0xffffffff,
    .progressTrack = 0xffe4e4e8,
    .progress = 0xff1a7f37,
    .progressText = 0xff1a7f37,
    .prediction = 0xfff5c518,
    .predictionText = 0xff9a6700,
    .hoverLabel = 0xff55585e,
    .unknown = 0xff1f6feb,
    .inOffice = 0xff1a7f37,
    .outOfOffice = 0xffd1242f,
    .vacationDay = 0xff8250df,
    .willBeInOffice = 0xfff5c518,
    .nonWorkday = 0xffb9bcc2,
};

const Theme dark{
    .page = 0xff1e1f22,
    .card = 0xff27282c,
    .border = 0xff3a3b40,
    .text = 0xfff2f2f4,
    .dimText = 0xffa4a6ac,
    .accent = 0xff5b9bff,
    .errorText = 0xffff8a80,
    .field = 0xff1e1f22,
    .fieldBorder = 0xff74767d,
    .trough = 0xff33343a,
    .chosen = 0xff4a4c53,
    .progressTrack = 0xff3a3b41,
    .progress = 0xff238a43,
    .progressText = 0xff45b868,
    .prediction = 0xfff2c94c,
    .predictionText = 0xfff2c94c,
    .hoverLabel = 0xff5f6268,
    .unknown = 0xff2f7af0,
    .inOffice = 0xff238a43,
    .outOfOffice = 0xffdc3d43,
    .vacationDay = 0xff8e5ce6,
    .willBeInOffice = 0xfff2c94c,
    .nonWorkday = 0xff5b5e66,
};

// WCAG 2.1, "relative luminance", 0 to 1.
double relativeLuminance(const QColor& color)
{
    const auto linear = [](double channel) {
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

} // namespace

const Theme& themeFor(ColorScheme scheme)
{
    return scheme == ColorScheme::Dark ? dark : light;
}

const Theme& themeFor(const QPalette& palette)
{
    return themeFor(colorSchemeOf(palette));
}

ColorScheme colorSchemeOf(const QPalette& palette)
{
    const bool isDark = palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
    return isDark ? ColorScheme::Dark : ColorScheme::Light;
}

QPalette paletteFor(ColorScheme scheme)
{
    const Theme& theme = themeFor(scheme);
    QPalette palette(theme.trough, theme.page);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        palette.setColor(role, theme.text);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, theme.dimText);
    palette.setColor(QPalette::Window, theme.page);
    palette.setColor(QPalette::Base, theme.card);
    palette.setColor(QPalette::AlternateBase, theme.page);
    palette.setColor(QPalette::ToolTipBase, theme.card);
    palette.setColor(QPalette::PlaceholderText, theme.dimText);
    palette.setColor(QPalette::Link, theme.accent);
    palette.setColor(QPalette::BrightText, theme.errorText);
    palette.setColor(QPalette::Highlight, themeFor(ColorScheme::Light).accent);
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
    return contrastRatio(nearBlack, background) > contrastRatio(white, background) ? nearBlack : white;
}

double contrastRatio(const QColor& a, const QColor& b)
{
    const double first = relativeLuminance(a) + 0.05;
    const double second = relativeLuminance(b) + 0.05;
    return std::max(first, second) / std::min(first, second);
}
