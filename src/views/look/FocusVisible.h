// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFocusEvent>

class QColor;
class QPainter;
class QRectF;
class QWidget;

/// Whether a control shows a focus ring: only while the keyboard is used, as with :focus-visible in CSS.
class FocusVisible {
public:
    /// Must be called on every focus-in event.
    void update(Qt::FocusReason reason)
    {
        // Returning to a window leaves the ring as it was.
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
            m_visible =
                reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
    }

    /// Must be called on every key press.
    void show() { m_visible = true; }

    /// Draws the ring if the widget has the focus and the keyboard is used.
    void drawRing(QPainter& painter, const QWidget& widget, const QRectF& area, qreal radius) const;
    void drawRing(QPainter& painter, const QWidget& widget, const QRectF& area, qreal radius,
                  const QColor& color) const;

    explicit operator bool() const { return m_visible; }

private:
    bool m_visible = false;
};
