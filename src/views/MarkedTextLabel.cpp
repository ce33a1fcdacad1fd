// SPDX-License-Identifier: GPL-3.0-or-later
#include "MarkedTextLabel.h"

#include <QPainter>
#include <QTextLayout>

#include <cmath>
#include <limits>

void MarkedTextLabel::setMarkedText(const MarkedText& text)
{
    if (text == m_text)
        return;
    m_text = text;
    setText(toPlainText(text));
    updateGeometry();
}

QSize MarkedTextLabel::sizeHint() const
{
    QTextLayout layout;
    const QSizeF size = layOut(layout, std::numeric_limits<int>::max());
    return {static_cast<int>(std::ceil(size.width())), static_cast<int>(std::ceil(size.height()))};
}

QSize MarkedTextLabel::minimumSizeHint() const
{
    return {0, fontMetrics().height()};
}

int MarkedTextLabel::heightForWidth(int width) const
{
    QTextLayout layout;
    return static_cast<int>(std::ceil(layOut(layout, width).height()));
}

void MarkedTextLabel::paintEvent(QPaintEvent* /*event*/)
{
    QTextLayout layout;
    layOut(layout, width());
    QPainter painter(this);
    painter.setPen(palette().color(m_plainRole));
    layout.draw(&painter, {});
}

QSizeF MarkedTextLabel::layOut(QTextLayout& layout, qreal width) const
{
    QList<QTextLayout::FormatRange> formats;
    int start = 0;
    for (const TextRun& run : m_text) {
        const int length = static_cast<int>(run.text.size());
        if (run.bold) {
            QTextCharFormat bold;
            bold.setFontWeight(QFont::Bold);
            bold.setForeground(palette().color(QPalette::WindowText));
            formats.append({start, length, bold});
        }
        start += length;
    }
    QTextOption option(Qt::AlignLeading);
    option.setTextDirection(layoutDirection());
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setText(text());
    layout.setFont(font());
    layout.setFormats(formats);
    layout.setTextOption(option);

    QSizeF size;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        line.setPosition({0.0, size.height()});
        size = {qMax(size.width(), line.naturalTextWidth()), size.height() + line.height()};
    }
    layout.endLayout();
    return size;
}
