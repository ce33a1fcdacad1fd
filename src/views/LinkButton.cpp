// SPDX-License-Identifier: GPL-3.0-or-later
#include "LinkButton.h"

#include "Fonts.h"
#include "Theme.h"

#include <QPainter>
#include <QStyle>

namespace {

constexpr int symbolSize = 16;
constexpr int gap = 4;
constexpr QMargins padding(6, 4, 6, 4);
constexpr qreal radius = 6.0;

} // namespace

LinkButton::LinkButton(const QString& text, Symbol symbol, SymbolSide side, QWidget* parent)
    : QAbstractButton(parent)
    , m_symbol(symbol)
    , m_side(side)
{
    setText(text);
    setFont(fonts::body(font()));
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize LinkButton::sizeHint() const
{
    const QSize words = fontMetrics().size(Qt::TextShowMnemonic, text());
    return QSize(words.width() + gap + symbolSize, qMax(words.height(), symbolSize)).grownBy(padding);
}

void LinkButton::focusInEvent(QFocusEvent* event)
{
    m_focusVisible.update(event->reason());
    QAbstractButton::focusInEvent(event);
}

void LinkButton::paintEvent(QPaintEvent* /*event*/)
{
    const Theme& theme = themeFor(palette());
    const QColor color = isEnabled() ? theme.accent : theme.dimText;
    const QRect inside = rect().marginsRemoved(padding);
    const Qt::Alignment symbolEdge = m_side == SymbolSide::Leading ? Qt::AlignLeft : Qt::AlignRight;
    const Qt::Alignment wordsEdge = m_side == SymbolSide::Leading ? Qt::AlignRight : Qt::AlignLeft;

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (isEnabled() && (underMouse() || isDown())) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(isDown() ? theme.border : theme.page);
        painter.drawRoundedRect(rect(), radius, radius);
    }
    if (hasFocus() && m_focusVisible) {
        painter.setPen(QPen(theme.accent, 2.0));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), radius, radius);
    }
    painter.setPen(color);
    painter.drawText(QStyle::visualRect(layoutDirection(), inside, inside),
                     static_cast<int>(QStyle::visualAlignment(layoutDirection(), wordsEdge) | Qt::AlignVCenter),
                     text());
    const QRect symbolPlace =
        QStyle::alignedRect(layoutDirection(), symbolEdge | Qt::AlignVCenter, {symbolSize, symbolSize}, inside);
    // A symbol that points back points the other way in a layout from right to left.
    painter.save();
    if (layoutDirection() == Qt::RightToLeft) {
        painter.translate(2.0 * QRectF(symbolPlace).center().x(), 0.0);
        painter.scale(-1.0, 1.0);
    }
    drawSymbol(painter, symbolPlace, m_symbol, color);
    painter.restore();
}
