// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

/// The bar along an edge of a window, for its tabs and buttons.
class Bar : public QWidget {
    Q_OBJECT

public:
    /// `line` is the edge of the bar that is drawn: the one towards the rest of the window.
    explicit Bar(Qt::Edge line, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Qt::Edge m_line;
};
