// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

/// A rounded panel.
class Card : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// Returns a new card around the contents, with padding.
    [[nodiscard]] static Card* around(QWidget* contents);

    /// The width of the cards that hold grids and trackers.
    static constexpr int contentWidth = 470;

protected:
    void paintEvent(QPaintEvent* event) override;
};
