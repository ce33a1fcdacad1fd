// SPDX-License-Identifier: GPL-3.0-or-later
#include "TextField.h"

#include "Fonts.h"
#include "Outline.h"
#include "ReturnKey.h"

#include <QKeyEvent>

namespace {

constexpr QMargins fieldPadding(7, 4, 7, 4);

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
    drawField(*this);
    QLineEdit::paintEvent(event);
}
