// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Appearance.h"
#include "Day.h"

#include <QColor>
#include <QPalette>

/// The colours of the program in one colour scheme.
struct Theme {
    QColor page;
    QColor card;
    QColor border;
    QColor text;
    QColor dimText;
    QColor accent;
    /// For messages about input that was refused.
    QColor errorText;
    QColor field;
    QColor fieldBorder;
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

[[nodiscard]] const Theme& themeFor(ColorScheme scheme);
/// The theme that a palette belongs to.
[[nodiscard]] const Theme& themeFor(const QPalette& palette);
[[nodiscard]] ColorScheme colorSchemeOf(const QPalette& palette);
[[nodiscard]] QPalette paletteFor(ColorScheme scheme);

/// The colour of a day's cell: that of its state, or gray for an unmarked non-workday.
[[nodiscard]] QColor dayColor(const Theme& theme, const Day& day);

/// Near-black or white, whichever contrasts more with the background.
[[nodiscard]] QColor readableTextOn(const QColor& background);
/// The contrast ratio of two opaque colours, 1 to 21 (WCAG 2.1, "contrast ratio").
[[nodiscard]] double contrastRatio(const QColor& a, const QColor& b);
