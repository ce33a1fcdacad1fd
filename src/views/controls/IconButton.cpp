// SPDX-License-Identifier: GPL-3.0-or-later
#include "IconButton.h"

#include "Labels.h"
#include "Theme.h"

#include <QPainter>
#include <QStyle>

namespace {

constexpr QSize iconButtonSize(32, 32);
constexpr QSize iconSymbolSize(20, 20);

} // namespace

IconButton::IconButton(Symbol symbol, const QString& text, QWidget* parent)
    : FlatButton(parent)
    , m_symbol(symbol)
{
    setHelp(text);
}

void IconButton::setSymbol(Symbol symbol)
{
    m_symbol = symbol;
    update();
}

void IconButton::setHelp(const QString& text)
{
    setToolTip(labels::help(text));
    setAccessibleName(text);
}

void IconButton::setQuiet()
{
    m_quiet = true;
    update();
}

QSize IconButton::sizeHint() const
{
    return iconButtonSize;
}

QColor IconButton::color() const
{
    const Theme& theme = themeFor(palette());
    return isEnabled() && !m_quiet ? theme.text : theme.dimText;
}

void IconButton::paintEvent(QPaintEvent* /*event*/)
{
    const Theme& theme = themeFor(palette());
    QPainter painter(this);
    paintFace(painter, theme.trough);
    drawSymbol(painter, QStyle::alignedRect(layoutDirection(), Qt::AlignCenter, iconSymbolSize, rect()), m_symbol,
               color());
}
