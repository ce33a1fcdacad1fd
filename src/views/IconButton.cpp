// SPDX-License-Identifier: GPL-3.0-or-later
#include "IconButton.h"

#include "Labels.h"
#include "Theme.h"

#include <QPainter>
#include <QStyle>

namespace {

constexpr QSize wholeSize(32, 32);
constexpr QSize symbolSize(20, 20);
constexpr qreal radius = 7.0;

} // namespace

IconButton::IconButton(Symbol symbol, const QString& text, QWidget* parent)
    : QAbstractButton(parent)
    , m_symbol(symbol)
{
    setHelp(text);
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
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
    return wholeSize;
}

QColor IconButton::color() const
{
    const Theme& theme = themeFor(palette());
    return isEnabled() && !m_quiet ? theme.text : theme.dimText;
}

void IconButton::focusInEvent(QFocusEvent* event)
{
    m_focusVisible.update(event->reason());
    QAbstractButton::focusInEvent(event);
}

void IconButton::paintEvent(QPaintEvent* /*event*/)
{
    const Theme& theme = themeFor(palette());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (isEnabled() && (underMouse() || isDown())) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(isDown() ? theme.border : theme.trough);
        painter.drawRoundedRect(rect(), radius, radius);
    }
    if (hasFocus() && m_focusVisible) {
        painter.setPen(QPen(theme.accent, 2.0));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), radius, radius);
    }
    drawSymbol(painter, QStyle::alignedRect(layoutDirection(), Qt::AlignCenter, symbolSize, rect()), m_symbol, color());
}
