// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Appearance.h"
#include "Day.h"

#include <QColor>
#include <QPalette>

/// What the colours depend on.
struct Look {
    ColorScheme scheme = ColorScheme::Light;
    Contrast contrast = Contrast::Normal;

    bool operator==(const Look&) const = default;
};

/// The colours of the program in one look.
struct Theme {
    QColor page;
    QColor card;
    QColor border;
    QColor text;
    QColor dimText;
    /// Of controls that are disabled.
    QColor disabledText;
    QColor accent;
    /// The ground of white text: the main button, a switch that is on, what is selected.
    QColor fill;
    /// For messages about input that was refused.
    QColor errorText;
    QColor field;
    /// Of fields and buttons.
    QColor controlBorder;
    /// Around what would differ from its ground by colour alone. Transparent unless contrast is high.
    QColor outline;
    /// The ground of what is pressed.
    QColor pressed;
    /// The backgrounds of a segmented control and of its selected segment.
    QColor trough;
    QColor selected;
    QColor progressTrack;
    QColor progress;
    QColor progressText;
    QColor prediction;
    QColor predictionText;
    QColor hoverLabel;

    QColor unknown;
    QColor inOffice;
    QColor outOfOffice;
    QColor vacationDay;
    QColor willBeInOffice;
    QColor nonWorkday;
};

[[nodiscard]] const Theme& themeFor(const Look& look);
/// The theme that a palette belongs to.
[[nodiscard]] const Theme& themeFor(const QPalette& palette);
/// The look of any palette, which need not be one of the program.
[[nodiscard]] Look lookOf(const QPalette& palette);
[[nodiscard]] QPalette paletteFor(const Look& look);

/// The colour of a day's cell: that of its state, or gray for an unmarked non-workday.
[[nodiscard]] QColor dayColor(const Theme& theme, const Day& day);

/// Near-black or white, whichever is easier to read on a background.
[[nodiscard]] QColor readableTextOn(const QColor& background);
