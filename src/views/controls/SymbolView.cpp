// SPDX-License-Identifier: GPL-3.0-or-later
#include "SymbolView.h"

#include "Theme.h"

#include <QPainter>

SymbolView::SymbolView(Symbol symbol, QWidget* parent)
    : QWidget(parent)
    , m_symbol(symbol)
{
    setFixedSize(20, 20);
}

void SymbolView::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    drawSymbol(painter, rect(), m_symbol, themeFor(palette()).text);
}
