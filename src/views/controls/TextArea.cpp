// SPDX-License-Identifier: GPL-3.0-or-later
#include "TextArea.h"

#include "Fonts.h"
#include "Outline.h"
#include "ThinScrollBarStyle.h"

#include <QEvent>
#include <QScrollBar>

namespace {

constexpr QMargins areaPadding(4, 3, 2, 3);

} // namespace

TextArea::TextArea(int lines, QWidget* parent)
    : QTextEdit(parent)
{
    setFont(fonts::body(font()));
    setAcceptRichText(false);
    setTabChangesFocus(true);
    // event() draws the border.
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
        drawField(*this);
    return QTextEdit::event(event);
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
