// SPDX-License-Identifier: GPL-3.0-or-later
#include "TextArea.h"

#include "Fonts.h"
#include "Outline.h"
#include "ThinScrollBarStyle.h"

#include <QEvent>
#include <QScrollBar>
#include <QtMath>

namespace {

// Outside the text, so that no part of a further line shows in it, and with room for the scroll bar.
constexpr QMargins areaPadding(8, 7, 10, 7);

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
    document()->setDocumentMargin(0);
    const int line = qCeil(QFontMetricsF(font()).lineSpacing()); // as a document rounds it
    setFixedHeight(lines * line + areaPadding.top() + areaPadding.bottom());
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
