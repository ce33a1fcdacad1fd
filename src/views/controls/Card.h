// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Fonts.h"
#include "WindowSize.h"

#include <QWidget>

/// A rounded panel.
class Card : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// Returns a new card around the contents, with padding.
    [[nodiscard]] static Card* around(QWidget* contents);

    /// The width of the cards that hold grids and trackers, and the least that these need. Never wider than the
    /// screen.
    [[nodiscard]] static int contentWidth(const QFont& font) { return qMin(fonts::grown(470, font), widestContents()); }
    [[nodiscard]] static int leastContentWidth(const QFont& font)
    {
        return qMin(fonts::grown(396, font), widestContents());
    }

protected:
    void paintEvent(QPaintEvent* event) override;
};
