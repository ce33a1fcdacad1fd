// SPDX-License-Identifier: GPL-3.0-or-later
#include "LinkButton.h"

#include "Fonts.h"
#include "Theme.h"

#include <QPainter>
#include <QStyle>

namespace {

constexpr int usualSymbolSize = 16;
constexpr int linkGap = 4;
constexpr QMargins linkPadding(6, 4, 6, 4);

} // namespace

LinkButton::LinkButton(const QString& text, QWidget* parent)
    : FlatButton(parent)
    , m_symbolSize(fonts::grown(usualSymbolSize, font()))
{
    setText(text);
    setFont(fonts::body(font()));
}

LinkButton::LinkButton(const QString& text, Symbol symbol, SymbolSide side, QWidget* parent)
    : LinkButton(text, parent)
{
    m_symbol = symbol;
    m_side = side;
}

QSize LinkButton::sizeHint() const
{
    const QSize words = fontMetrics().size(Qt::TextShowMnemonic, text());
    const QSize symbol = m_symbol ? QSize(linkGap + m_symbolSize, m_symbolSize) : QSize(0, 0);
    return QSize(words.width() + symbol.width(), qMax(words.height(), symbol.height())).grownBy(linkPadding);
}

void LinkButton::paintEvent(QPaintEvent* /*event*/)
{
    const Theme& theme = themeFor(palette());
    const QRect inside = rect().marginsRemoved(linkPadding);
    const bool isLeading = m_side == SymbolSide::Leading;
    const auto edge = [this](bool isLeft) {
        return QStyle::visualAlignment(layoutDirection(), isLeft ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter;
    };

    QPainter painter(this);
    paintFace(painter, theme.page);
    painter.setPen(isEnabled() ? theme.accent : theme.disabledText);
    painter.drawText(inside, static_cast<int>(edge(!isLeading)), text());
    if (m_symbol)
        paintSymbol(painter,
                    QStyle::alignedRect(Qt::LeftToRight, edge(isLeading), {m_symbolSize, m_symbolSize}, inside));
}

void LinkButton::paintSymbol(QPainter& painter, const QRect& place) const
{
    // Arrows point the other way in right-to-left layouts.
    if (layoutDirection() == Qt::RightToLeft) {
        painter.translate(2.0 * QRectF(place).center().x(), 0.0);
        painter.scale(-1.0, 1.0);
    }
    drawSymbol(painter, place, *m_symbol, painter.pen().color());
}
