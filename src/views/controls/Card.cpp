// SPDX-License-Identifier: GPL-3.0-or-later
#include "Card.h"

#include "Theme.h"

#include <QPainter>
#include <QVBoxLayout>

Card* Card::around(QWidget* contents)
{
    auto* card = new Card;
    auto* inside = new QVBoxLayout(card);
    inside->setContentsMargins(20, 18, 20, 18);
    inside->addWidget(contents);
    return card;
}

void Card::paintEvent(QPaintEvent* /*event*/)
{
    constexpr qreal radius = 12.0;
    const Theme& theme = themeFor(palette());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(theme.border);
    painter.setBrush(theme.card);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
}
