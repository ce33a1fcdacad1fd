// SPDX-License-Identifier: GPL-3.0-or-later
#include "MarkedTextLabel.h"

#include <QEvent>
#include <QPainter>

#include <cmath>
#include <limits>

namespace {

QSize roundedUp(const QSizeF& size)
{
    return {static_cast<int>(std::ceil(size.width())), static_cast<int>(std::ceil(size.height()))};
}

} // namespace

void MarkedTextLabel::setMarkedText(const MarkedText& text)
{
    if (text == m_text)
        return;
    m_text = text;
    m_width = notLaidOut;
    setText(toPlainText(text));
    updateGeometry();
}

void MarkedTextLabel::setPlainRole(QPalette::ColorRole role)
{
    m_plainRole = role;
    update();
}

QSize MarkedTextLabel::sizeHint() const
{
    return roundedUp(layOut(std::numeric_limits<int>::max()));
}

QSize MarkedTextLabel::minimumSizeHint() const
{
    return {0, fontMetrics().height()};
}

int MarkedTextLabel::heightForWidth(int width) const
{
    return roundedUp(layOut(width)).height();
}

void MarkedTextLabel::changeEvent(QEvent* event)
{
    // The layout depends on font, direction and palette.
    m_width = notLaidOut;
    QLabel::changeEvent(event);
}

void MarkedTextLabel::paintEvent(QPaintEvent* /*event*/)
{
    layOut(width());
    QPainter painter(this);
    painter.setPen(palette().color(m_plainRole));
    m_layout.draw(&painter, {});
}

QSizeF MarkedTextLabel::layOut(qreal width) const
{
    // Text that fits on one line is laid out the same at every width in between.
    const bool isOneLine = m_layout.lineCount() == 1 && m_size.width() <= width && width <= m_width;
    if (width == m_width || (isOneLine && layoutDirection() == Qt::LeftToRight))
        return m_size;
    if (m_width == notLaidOut)
        prepareLayout();
    m_width = width;
    m_size = {};
    m_layout.beginLayout();
    for (QTextLine line = m_layout.createLine(); line.isValid(); line = m_layout.createLine()) {
        line.setLineWidth(width);
        line.setPosition({0.0, m_size.height()});
        m_size = {qMax(m_size.width(), line.naturalTextWidth()), m_size.height() + line.height()};
    }
    m_layout.endLayout();
    return m_size;
}

void MarkedTextLabel::prepareLayout() const
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
    m_layout.setText(text());
    m_layout.setFont(font());
    m_layout.setFormats(formats);
    m_layout.setTextOption(option);
}
