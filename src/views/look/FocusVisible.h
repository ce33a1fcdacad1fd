// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFocusEvent>

class QPainter;
class QRectF;
class QWidget;

/// Whether a focus ring is of use: it is to somebody who works with the keyboard, and is in the way of the pointer.
class FocusVisible {
public:
    /// To be told of every focus that comes in.
    void update(Qt::FocusReason reason)
    {
        // A window that comes to the front again shows what it showed before.
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
            m_visible =
                reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
    }

    /// To be told when a key is used.
    void show() { m_visible = true; }

    /// Draws a ring where the widget has the focus and the ring is of use.
    void drawRing(QPainter& painter, const QWidget& widget, const QRectF& place, qreal radius) const;

    explicit operator bool() const { return m_visible; }

private:
    bool m_visible = false;
};
