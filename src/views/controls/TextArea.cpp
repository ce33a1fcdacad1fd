// SPDX-License-Identifier: GPL-3.0-or-later
#include "TextArea.h"

#include "Fonts.h"
#include "Theme.h"
#include "ThinScrollBarStyle.h"

#include <QEvent>
#include <QPainter>
#include <QScrollBar>

namespace {

constexpr QMargins areaPadding(4, 3, 2, 3);
constexpr qreal areaRadius = 7.0;

} // namespace

TextArea::TextArea(int lines, QWidget* parent)
    : QTextEdit(parent)
{
    setFont(fonts::body(font()));
    setAcceptRichText(false);
    setTabChangesFocus(true);
    // paintBorder() draws the border.
    setFrameShape(QFrame::NoFrame);
    setViewportMargins(areaPadding);
    viewport()->setAutoFillBackground(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* barStyle = new ThinScrollBarStyle;
    barStyle->setParent(this);
    verticalScrollBar()->setStyle(barStyle);
    verticalScrollBar()->setAttribute(Qt::WA_OpaquePaintEvent, false);
    const int text = lines * (fontMetrics().lineSpacing() + 1) + 2 * static_cast<int>(document()->documentMargin());
    setFixedHeight(text + areaPadding.top() + areaPadding.bottom());
}

bool TextArea::event(QEvent* event)
{
    if (event->type() == QEvent::Paint)
        paintBorder();
    return QTextEdit::event(event);
}

void TextArea::paintBorder()
{
    const Theme& theme = themeFor(palette());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(hasFocus() ? QPen(theme.accent, 2.0) : QPen(theme.controlBorder, 1.0));
    painter.setBrush(theme.field);
    const qreal inset = painter.pen().widthF() / 2;
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), areaRadius, areaRadius);
}

void TextArea::focusInEvent(QFocusEvent* event)
{
    QTextEdit::focusInEvent(event);
    update();
}

void TextArea::focusOutEvent(QFocusEvent* event)
{
    QTextEdit::focusOutEvent(event);
    update();
    Q_EMIT left();
}
