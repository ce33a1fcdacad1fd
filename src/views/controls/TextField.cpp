// SPDX-License-Identifier: GPL-3.0-or-later
#include "TextField.h"

#include "Fonts.h"
#include "ReturnKey.h"
#include "Theme.h"

#include <QKeyEvent>
#include <QPainter>

namespace {

constexpr QMargins fieldPadding(7, 4, 7, 4);
constexpr qreal fieldRadius = 7.0;

} // namespace

TextField::TextField(const QString& prompt, QWidget* parent)
    : QLineEdit(parent)
{
    setFont(fonts::body(font()));
    setPlaceholderText(prompt);
    setAccessibleName(prompt);
    // paintEvent() draws the border.
    setFrame(false);
    setTextMargins(fieldPadding);
    QPalette clear;
    clear.setColor(QPalette::Base, Qt::transparent);
    setPalette(clear);
}

void TextField::keyPressEvent(QKeyEvent* event)
{
    QLineEdit::keyPressEvent(event);
    if (isReturn(*event))
        event->accept();
}

void TextField::paintEvent(QPaintEvent* event)
{
    const Theme& theme = themeFor(palette());
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(hasFocus() ? QPen(theme.accent, 2.0) : QPen(theme.controlBorder, 1.0));
        painter.setBrush(theme.field);
        const qreal inset = painter.pen().widthF() / 2;
        painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), fieldRadius, fieldRadius);
    }
    QLineEdit::paintEvent(event);
}
