// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPoint>
#include <QTimer>

class QScrollArea;
class QWidget;

/// Scrolls a page while the pointer drags at its upper or lower edge, until the widgets there are in sight.
class EdgeScroll : public QObject {
    Q_OBJECT

public:
    explicit EdgeScroll(const QWidget& contents);

    /// Of the widgets that can be dragged over, the ones at the top and at the bottom.
    void setEnds(const QWidget& first, const QWidget& last);
    /// The pointer is at a place of the screen.
    void follow(const QPoint& place);
    void stop() { m_timer.stop(); }

Q_SIGNALS:
    void scrolled();

private:
    [[nodiscard]] const QScrollArea* area() const;
    /// How far to scroll next, negative to the top. It is faster beyond the edge.
    [[nodiscard]] int step() const;
    void scroll();

    const QWidget& m_contents;
    const QWidget* m_first = nullptr;
    const QWidget* m_last = nullptr;
    QPoint m_place;
    QTimer m_timer;
};
