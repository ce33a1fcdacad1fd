// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

/// A rounded panel on the page.
class Card : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// A card that holds these contents, with room around them.
    [[nodiscard]] static Card* around(QWidget* contents);

    /// Inner width of a card, in which trackers and grids stand centred.
    static constexpr int contentWidth = 470;

protected:
    void paintEvent(QPaintEvent* event) override;
};
