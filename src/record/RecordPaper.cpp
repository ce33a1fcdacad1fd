// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecordPaper.h"

#include <QCoreApplication>
#include <QPainter>
#include <QPdfWriter>
#include <QTextLayout>

#include <utility>

namespace {

struct RecordPages {
    Q_DECLARE_TR_FUNCTIONS(RecordPaper)
};

constexpr qreal millimetresOfInch = 25.4;
// Between the text and what is above and below it on every page.
constexpr qreal headRoom = 9.0;
constexpr qreal footRoom = 8.0;
constexpr qreal leading = 1.05;

QFont paperFont(qreal points, QFont::Weight weight)
{
    QFont font;
    font.setPointSizeF(points);
    font.setWeight(weight);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

} // namespace

RecordPaper::RecordPaper(QPdfWriter& writer, const QString& title, const QString& foot)
    : m_writer(writer)
    , m_title(title)
    , m_foot(foot)
    // In the order of RecordType.
    , m_fonts{paperFont(8.5, QFont::Normal), paperFont(8.5, QFont::Bold), paperFont(7.0, QFont::Normal),
              paperFont(12.0, QFont::Bold), paperFont(17.0, QFont::Bold)}
{
    for (const QFont& font : std::as_const(m_fonts))
        m_metrics.append(QFontMetricsF(font, &writer));
    const QSizeF size = writer.pageLayout().paintRectPixels(writer.resolution()).size();
    m_area = QRectF({}, size).adjusted(0, mm(headRoom), 0, -mm(footRoom));
    beginPage();
}

void RecordPaper::startDrawing(QPainter& painter)
{
    m_painter = &painter;
    m_pageCount = std::exchange(m_page, 0);
    beginPage();
}

void RecordPaper::beginPage()
{
    if (m_painter != nullptr && m_page > 0)
        m_writer.newPage();
    ++m_page;
    // The title of the first page takes the place of the head.
    m_y = m_page == 1 ? 0.0 : m_area.top();
    if (m_painter != nullptr)
        drawHeadAndFoot();
}

void RecordPaper::drawHeadAndFoot()
{
    const QRectF foot(left(), m_area.bottom() + mm(footRoom) - lineHeight(RecordType::Small), width(), 0);
    const QString page = RecordPages::tr("Page %1 of %2").arg(QString::number(m_page), QString::number(m_pageCount));
    m_painter->setPen({Qt::black, mm(0.1)});
    drawLine(foot, m_foot, RecordType::Small);
    drawLine(foot, page, RecordType::Small, Qt::AlignRight);
    if (m_page == 1)
        return;
    drawLine({left(), 0, width(), 0}, m_title, RecordType::Small);
    const qreal rule = lineHeight(RecordType::Small) + mm(1);
    m_painter->drawLine(QPointF(left(), rule), QPointF(left() + width(), rule));
}

qreal RecordPaper::mm(qreal length) const
{
    return length / millimetresOfInch * m_writer.resolution();
}

void RecordPaper::require(qreal height)
{
    if (height > heightLeft())
        beginPage();
}

const QFont& RecordPaper::font(RecordType type) const
{
    return m_fonts.at(static_cast<qsizetype>(type));
}

const QFontMetricsF& RecordPaper::metrics(RecordType type) const
{
    return m_metrics.at(static_cast<qsizetype>(type));
}

qreal RecordPaper::lineHeight(RecordType type) const
{
    return metrics(type).height() * leading;
}

QStringList RecordPaper::linesOf(const QString& text, RecordType type, qreal width) const
{
    if (text.isEmpty())
        return {};
    if (!text.contains(u'\n') && metrics(type).horizontalAdvance(text) <= width)
        return {text};
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    QStringList lines;
    for (const QString& paragraph : text.split(u'\n')) {
        QTextLayout layout(paragraph, font(type), &m_writer);
        layout.setTextOption(option);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(width);
            lines.append(paragraph.mid(line.textStart(), line.textLength()).trimmed());
        }
        layout.endLayout();
    }
    return lines;
}

void RecordPaper::drawLine(const QRectF& area, const QString& line, RecordType type, Qt::Alignment alignment)
{
    if (m_painter == nullptr || line.isEmpty())
        return;
    m_painter->setFont(font(type));
    qreal x = area.left();
    if (alignment != Qt::AlignLeft) {
        const qreal room = area.width() - metrics(type).horizontalAdvance(line);
        x += alignment == Qt::AlignRight ? room : room / 2;
    }
    m_painter->drawText(QPointF(x, area.top() + metrics(type).ascent()), line);
}

void RecordPaper::addText(const QString& text, RecordType type)
{
    for (const QString& line : linesOf(text, type, width())) {
        require(lineHeight(type));
        drawLine({left(), m_y, width(), 0}, line, type);
        m_y += lineHeight(type);
    }
}

void RecordPaper::addHeading(const QString& text, qreal below)
{
    require(lineHeight(RecordType::Heading) + mm(6) + below);
    if (m_y > m_area.top())
        m_y += mm(5);
    addText(text, RecordType::Heading);
    m_y += mm(1);
}
