// SPDX-License-Identifier: GPL-3.0-or-later
#include "LinkButton.h"

#include "Fonts.h"
#include "Theme.h"

#include <QPainter>
#include <QStyle>

namespace {

constexpr int linkSymbolSize = 16;
constexpr int linkGap = 4;
constexpr QMargins linkPadding(6, 4, 6, 4);

} // namespace

LinkButton::LinkButton(const QString& text, Symbol symbol, SymbolSide side, QWidget* parent)
    : FlatButton(parent)
    , m_symbol(symbol)
    , m_side(side)
{
    setText(text);
    setFont(fonts::body(font()));
}

QSize LinkButton::sizeHint() const
{
    const QSize words = fontMetrics().size(Qt::TextShowMnemonic, text());
    return QSize(words.width() + linkGap + linkSymbolSize, qMax(words.height(), linkSymbolSize)).grownBy(linkPadding);
}

void LinkButton::paintEvent(QPaintEvent* /*event*/)
{
    const Theme& theme = themeFor(palette());
    const QColor color = isEnabled() ? theme.accent : theme.dimText;
    const QRect inside = rect().marginsRemoved(linkPadding);
    const Qt::Alignment symbolEdge = m_side == SymbolSide::Leading ? Qt::AlignLeft : Qt::AlignRight;
    const Qt::Alignment wordsEdge = m_side == SymbolSide::Leading ? Qt::AlignRight : Qt::AlignLeft;

    QPainter painter(this);
    paintFace(painter, theme.page);
    painter.setPen(color);
    painter.drawText(QStyle::visualRect(layoutDirection(), inside, inside),
                     static_cast<int>(QStyle::visualAlignment(layoutDirection(), wordsEdge) | Qt::AlignVCenter),
                     text());
    const QRect symbolPlace =
        QStyle::alignedRect(layoutDirection(), symbolEdge | Qt::AlignVCenter, {linkSymbolSize, linkSymbolSize}, inside);
    // Arrows point the other way in right-to-left layouts.
    painter.save();
    if (layoutDirection() == Qt::RightToLeft) {
        painter.translate(2.0 * QRectF(symbolPlace).center().x(), 0.0);
        painter.scale(-1.0, 1.0);
    }
    drawSymbol(painter, symbolPlace, m_symbol, color);
    painter.restore();
}
