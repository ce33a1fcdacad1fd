// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QVBoxLayout;

/// A small window at its anchor. It closes with Escape or a click elsewhere, and then deletes itself.
class Popover : public QWidget {
    Q_OBJECT

public:
    enum class Side { Below, Beside };

    Popover(QWidget* anchor, Side side);

    /// Gives it round corners and a shadow, which need a windowing system that blends windows.
    void setBlended(bool isBlended);
    /// Opens it on its side of the anchor, or where else there is room, and gives it the focus.
    void popUp();

protected:
    [[nodiscard]] QVBoxLayout& column() { return *m_column; }
    /// To be called after the contents have changed.
    void fitToContents();

    bool focusNextPrevChild(bool next) override;
    void paintEvent(QPaintEvent* event) override;

private:
    /// The room for the shadow on each side.
    [[nodiscard]] int shadow() const;
    [[nodiscard]] QPoint placeBelow(const QRect& anchor) const;
    [[nodiscard]] QPoint placeBeside(const QRect& anchor, const QRect& room) const;

    Side m_side;
    QVBoxLayout* m_column;
    bool m_isBlended = false;
};
