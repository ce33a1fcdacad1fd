// SPDX-License-Identifier: GPL-3.0-or-later
#include "IconButton.h"

#include "Fonts.h"
#include "Labels.h"
#include "Theme.h"

#include <QPainter>
#include <QStyle>

namespace {

// In the usual font, with which they grow.
constexpr int usualButtonSize = 32;
constexpr int usualIconSize = 20;

QSize grownSquare(int side, const QFont& font)
{
    return {fonts::grown(side, font), fonts::grown(side, font)};
}

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
    return grownSquare(usualButtonSize, font());
}

QColor IconButton::color() const
{
    const Theme& theme = themeFor(palette());
    if (!isEnabled())
        return theme.disabledText;
    return m_quiet ? theme.dimText : theme.text;
}

void IconButton::paintEvent(QPaintEvent* /*event*/)
{
    const Theme& theme = themeFor(palette());
    QPainter painter(this);
    paintFace(painter, theme.trough);
    drawSymbol(painter,
               QStyle::alignedRect(layoutDirection(), Qt::AlignCenter, grownSquare(usualIconSize, font()), rect()),
               m_symbol, color());
}
