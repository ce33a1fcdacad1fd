// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FocusVisible.h"

#include <QAbstractButton>

/// A button whose background and border show only under the pointer and with the focus.
class FlatButton : public QAbstractButton {
    Q_OBJECT

public:
    explicit FlatButton(QWidget* parent = nullptr);

protected:
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    /// Draws the background and the focus ring.
    void paintFace(QPainter& painter, const QColor& hovered) const;
    /// Draws only the focus ring, for buttons with a face of their own.
    void paintRing(QPainter& painter, const QRectF& area, qreal radius, const QColor& color) const;

private:
    void setHovered(bool isHovered);

    FocusVisible m_focusVisible;
    bool m_isHovered = false;
};
