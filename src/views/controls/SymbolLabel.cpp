// SPDX-License-Identifier: GPL-3.0-or-later
#include "SymbolLabel.h"

#include <QPainter>
#include <QStyle>

namespace {

constexpr int labelGap = 6;

} // namespace

int SymbolLabel::symbolRoom() const
{
    return symbol ? symbolSize + labelGap : 0;
}

QSize SymbolLabel::size(const QFontMetrics& metrics) const
{
    return metrics.size(Qt::TextShowMnemonic, text).grownBy({symbolRoom(), 0, 0, 0});
}

void SymbolLabel::paint(QPainter& painter, const QRect& area, Qt::LayoutDirection direction) const
{
    const QRect whole = QStyle::alignedRect(direction, Qt::AlignCenter, size(painter.fontMetrics()), area);
    painter.drawText(QStyle::visualRect(direction, whole, whole.adjusted(symbolRoom(), 0, 0, 0)),
                     Qt::AlignCenter | Qt::TextShowMnemonic, text);
    if (symbol)
        drawSymbol(painter,
                   QStyle::alignedRect(direction, Qt::AlignLeft | Qt::AlignVCenter, {symbolSize, symbolSize}, whole),
                   *symbol, painter.pen().color());
}
