// SPDX-License-Identifier: GPL-3.0-or-later
#include "PaperTable.h"

#include "StateMark.h"
#include "Theme.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr qreal cellPadding = 0.65;
constexpr qreal columnGap = 2.5;
constexpr qreal ruleWidth = 0.1;
constexpr QSizeF swatchSize(4.4, 3.3);
constexpr qreal roomForSwatch = 6.0;
// The size of a swatch on the screen, of which the one on paper is a smaller picture.
constexpr QSizeF swatchOnScreen(28.0, 21.0);

constexpr QColor shade(236, 236, 236);
constexpr QColor ruleColor(150, 150, 150);

} // namespace

void drawRecordSwatch(QPainter& painter, const QRectF& area, const Day& day, bool isDayOff)
{
    painter.save();
    painter.translate(area.topLeft());
    painter.scale(area.width() / swatchOnScreen.width(), area.height() / swatchOnScreen.height());
    drawDaySwatch(painter, QRectF({}, swatchOnScreen), themeFor(Look()), day, isDayOff);
    painter.restore();
}

PaperTable::PaperTable(RecordPaper& paper, const QList<PaperColumn>& columns)
    : m_paper(paper)
    , m_columns(columns)
{
    PaperRow heading{.cells = {}, .isStrong = true};
    for (const PaperColumn& column : columns) {
        m_shares += column.share;
        heading.cells.append(column.title);
    }
    m_heading = measured(heading);
}

qreal PaperTable::columnWidth(qsizetype column) const
{
    return m_paper.width() * m_columns.at(column).share / m_shares - m_paper.mm(columnGap);
}

PaperTable::MeasuredRow PaperTable::measured(const PaperRow& row) const
{
    MeasuredRow result{.row = row, .lines = {}};
    const RecordType type = row.isStrong ? RecordType::Strong : RecordType::Text;
    for (qsizetype i = 0; i < row.cells.size(); ++i) {
        const qreal taken = i == 1 && row.swatch ? m_paper.mm(roomForSwatch) : 0.0;
        result.lines.append(m_paper.linesOf(row.cells.at(i), type, columnWidth(i) - taken));
        result.lineCount = std::max(result.lineCount, result.lines.last().size());
    }
    return result;
}

qreal PaperTable::heightOf(const MeasuredRow& row) const
{
    return static_cast<qreal>(row.lineCount) * m_paper.lineHeight(RecordType::Text) + 2 * m_paper.mm(cellPadding);
}

qreal PaperTable::height() const
{
    qreal height = heightOf(m_heading);
    for (const MeasuredRow& row : m_rows)
        height += heightOf(row);
    return height;
}

qreal PaperTable::leastHeight() const
{
    return heightOf(m_heading) + (m_rows.isEmpty() ? 0.0 : heightOf(pieces(m_rows.first()).first()));
}

void PaperTable::draw()
{
    m_paper.require(leastHeight());
    drawHeading();
    for (const MeasuredRow& whole : m_rows) {
        for (const MeasuredRow& row : pieces(whole)) {
            if (heightOf(row) > m_paper.heightLeft()) {
                m_paper.require(m_paper.wholeHeight());
                drawHeading();
            }
            drawRow(row);
        }
    }
}

void PaperTable::drawHeading()
{
    drawRow(m_heading);
    if (QPainter* painter = m_paper.painter()) {
        painter->setPen({Qt::black, m_paper.mm(0.25)});
        painter->drawLine(QPointF(m_paper.left(), m_paper.y()), QPointF(m_paper.left() + m_paper.width(), m_paper.y()));
    }
}

void PaperTable::drawRow(const MeasuredRow& row)
{
    const qreal height = heightOf(row);
    const qreal top = m_paper.y();
    const RecordType type = row.row.isStrong ? RecordType::Strong : RecordType::Text;
    m_paper.skip(height);
    QPainter* painter = m_paper.painter();
    if (painter == nullptr)
        return;
    const QRectF whole(m_paper.left(), top, m_paper.width(), height);
    if (row.row.isShaded)
        painter->fillRect(whole.adjusted(0, m_paper.mm(ruleWidth), 0, 0), shade);
    painter->setPen({ruleColor, m_paper.mm(ruleWidth), Qt::SolidLine, Qt::FlatCap});
    painter->drawLine(whole.bottomLeft(), whole.bottomRight());
    painter->setPen(Qt::black);
    qreal x = whole.left() + m_paper.mm(columnGap) / 2;
    for (qsizetype i = 0; i < row.lines.size(); ++i) {
        QRectF area(x, top + m_paper.mm(cellPadding), columnWidth(i), 0);
        x += columnWidth(i) + m_paper.mm(columnGap);
        if (i == 1 && row.row.swatch) {
            if (row.row.swatch->state != DayState::UNKNOWN)
                drawSwatch(row, area.left());
            area.setLeft(area.left() + m_paper.mm(roomForSwatch));
        }
        for (const QString& line : row.lines.at(i)) {
            m_paper.drawLine(area, line, type, m_columns.at(i).alignment);
            area.translate(0, m_paper.lineHeight(RecordType::Text));
        }
    }
}

void PaperTable::drawSwatch(const MeasuredRow& row, qreal x)
{
    const QSizeF size(m_paper.mm(swatchSize.width()), m_paper.mm(swatchSize.height()));
    const qreal firstLine = m_paper.lineHeight(RecordType::Text) + 2 * m_paper.mm(cellPadding);
    const qreal top = m_paper.y() - heightOf(row);
    drawRecordSwatch(*m_paper.painter(), {{x, top + (firstLine - size.height()) / 2}, size}, *row.row.swatch,
                     row.row.isDayOff);
}

QList<PaperTable::MeasuredRow> PaperTable::pieces(const MeasuredRow& row) const
{
    const qreal room = m_paper.wholeHeight() - heightOf(m_heading) - 2 * m_paper.mm(cellPadding);
    const auto mostLines = std::max<qsizetype>(1, static_cast<qsizetype>(room / m_paper.lineHeight(RecordType::Text)));
    if (row.lineCount <= mostLines)
        return {row};
    QList<MeasuredRow> pieces;
    for (qsizetype first = 0; first < row.lineCount; first += mostLines) {
        MeasuredRow piece = row;
        piece.lineCount = std::min(mostLines, row.lineCount - first);
        for (QStringList& lines : piece.lines)
            lines = lines.mid(first, mostLines);
        pieces.append(piece);
    }
    return pieces;
}
