// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTreeView>

/// A tree on a card, without frame and heading. However many rows it has, only those in sight are laid out and drawn.
class PlainTree : public QTreeView {
    Q_OBJECT

public:
    explicit PlainTree(QWidget* parent = nullptr);

    /// Draws the focus ring of a row, as on buttons. For delegates, which keep the style from drawing its own.
    static void drawRing(QPainter& painter, const QStyleOptionViewItem& row);
    /// A row for the style to draw, with a check box that is seen on a dark card.
    [[nodiscard]] static QStyleOptionViewItem withVisibleBox(QStyleOptionViewItem row);

protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void dataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight, const QList<int>& roles) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};
