// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Card.h"

#include <QTimer>

class LinkButton;
class QLabel;

/// A line over the foot of an area that says what has just happened, and offers a link. It disappears by itself, but
/// not while the pointer is over it or its link has the focus.
class FootLine : public Card {
    Q_OBJECT

public:
    /// The area is a widget in the same window; the line follows it.
    explicit FootLine(QWidget& area);

    /// Shows a text, and a link unless its text is empty.
    void showText(const QString& text, const QString& link = {});
    /// Hides the line at once.
    void dismiss();

    [[nodiscard]] QString text() const;
    /// How much of the foot of the area is covered.
    [[nodiscard]] int footRoom() const;

Q_SIGNALS:
    void linkPressed();
    void footRoomChanged();
    /// The link is about to be hidden, and has the focus of the window.
    void focusLost();

protected:
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void place();
    [[nodiscard]] QSize sizeIn(int width);
    /// Whether the pointer or the focus is there, so that the next click or key may be meant for what would be covered.
    [[nodiscard]] bool isInUse(const QRect& place) const;
    void restartTimer();

    QWidget& m_area;
    QLabel* m_text;
    QLabel* m_dot;
    LinkButton* m_link;
    QTimer m_timer{this};
    bool m_isHovered = false;
    bool m_isAtFoot = true;
};
