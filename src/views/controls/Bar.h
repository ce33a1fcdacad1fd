// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

/// The bar along an edge of a window that holds tabs and buttons.
class Bar : public QWidget {
    Q_OBJECT

public:
    /// Draws a line along `border`, the edge towards the rest of the window. Left and right are swapped in
    /// right-to-left layouts.
    explicit Bar(Qt::Edge border, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Qt::Edge m_border;
};
