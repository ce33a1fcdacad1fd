// SPDX-License-Identifier: GPL-3.0-or-later
#include "MarkedTextLabel.h"

#include "Labels.h"

#include <QEvent>
#include <QFontMetricsF>
#include <QPainter>
#include <QStyle>

#include <cmath>
#include <limits>
#include <numeric>

namespace {

constexpr qreal unlimited = std::numeric_limits<int>::max();

QList<QTextLayout::FormatRange> boldRanges(const MarkedText& text, const QColor& color)
{
    QTextCharFormat bold;
    bold.setFontWeight(QFont::Bold);
    bold.setForeground(color);
    QList<QTextLayout::FormatRange> ranges;
    int start = 0;
    for (const TextRun& run : text) {
        const int length = static_cast<int>(run.text.size());
        if (run.bold)
            ranges.append({start, length, bold});
        start += length;
    }
    return ranges;
}

} // namespace

MarkedTextLabel::MarkedTextLabel(QWidget* parent)
    : QLabel(parent)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void MarkedTextLabel::setMarkedText(const MarkedText& text)
{
    if (text == m_text)
        return;
    m_text = text;
    setText(toPlainText(text));
    layOut();
}

void MarkedTextLabel::setLineCount(int lines)
{
    m_lines = lines;
    layOut();
    updateGeometry();
}

void MarkedTextLabel::setPlainRole(QPalette::ColorRole role)
{
    m_plainRole = role;
    update();
}

int MarkedTextLabel::linesFor(const MarkedText& text, int width) const
{
    QTextLayout layout;
    return breakLines(layout, text, toPlainText(text).size(), width);
}

QSize MarkedTextLabel::sizeHint() const
{
    QTextLayout layout;
    breakLines(layout, m_text, text().size(), unlimited);
    return {static_cast<int>(std::ceil(layout.maximumWidth())), minimumSizeHint().height()};
}

QSize MarkedTextLabel::minimumSizeHint() const
{
    // As a text layout has it, which does not round ascent and descent separately as QFontMetrics does.
    QFont bold = font();
    bold.setBold(true);
    const auto lineHeight = [](const QFontMetricsF& metrics) { return qCeil(metrics.ascent() + metrics.descent()); };
    return {0, m_lines * qMax(lineHeight(QFontMetricsF(font())), lineHeight(QFontMetricsF(bold)))};
}

void MarkedTextLabel::changeEvent(QEvent* event)
{
    const auto type = event->type();
    if (type == QEvent::FontChange || type == QEvent::LayoutDirectionChange || type == QEvent::PaletteChange)
        layOut();
    QLabel::changeEvent(event);
}

void MarkedTextLabel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setPen(palette().color(m_plainRole));
    m_layout.draw(&painter, {});
}

void MarkedTextLabel::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    layOut();
}

void MarkedTextLabel::layOut()
{
    const qsizetype whole = text().size();
    m_isElided = breakLines(m_layout, m_text, whole, width()) > m_lines;
    if (m_isElided) {
        qsizetype fitting = 0;
        qsizetype tooLong = whole;
        while (tooLong - fitting > 1) {
            const qsizetype letters = std::midpoint(fitting, tooLong);
            (breakLines(m_layout, m_text, letters, width()) > m_lines ? tooLong : fitting) = letters;
        }
        breakLines(m_layout, m_text, fitting, width());
    }
    setToolTip(m_isElided ? labels::help(text()) : QString());
    update();
}

int MarkedTextLabel::breakLines(QTextLayout& layout, const MarkedText& text, qsizetype letters, qreal width) const
{
    const QString whole = toPlainText(text);
    // The layout decides where lines begin, and the language of the text in which order its words are.
    QTextOption option(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft));
    option.setTextDirection(Qt::LayoutDirectionAuto);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setText(letters < whole.size() ? whole.left(letters).trimmed() + u'\u2026' : whole);
    layout.setFont(font());
    layout.setFormats(boldRanges(text, palette().color(QPalette::WindowText)));
    layout.setTextOption(option);
    qreal height = 0.0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        line.setPosition({0.0, height});
        height += line.height();
    }
    layout.endLayout();
    return layout.lineCount();
}
