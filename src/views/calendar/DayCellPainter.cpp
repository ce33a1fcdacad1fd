// SPDX-License-Identifier: GPL-3.0-or-later
#include "DayCellPainter.h"

#include "Outline.h"
#include "StateMark.h"
#include "Theme.h"

#include <QPainter>
#include <QStyle>

namespace {

constexpr QSize minimumFace(35, 26);
constexpr int cellRadius = 8;
constexpr QMargins cellMargins(6, 5, 6, 5);
// The number stands a little above the middle, which leaves room for the mark below it.
constexpr int numberLift = 4;
constexpr int markInset = 2;
constexpr int noteInset = 4;
constexpr qreal todayRingOutset = 2.5;
constexpr qreal focusRingOutset = 4.0;
constexpr qreal selectedRadius = 11.0;
constexpr qreal selectedInset = 0.75;
constexpr float selectedOpacity = 0.3F;

QSize faceSize(const QFontMetrics& metrics)
{
    const QSize text = metrics.size(Qt::TextSingleLine, QStringLiteral("30"));
    return text.grownBy({8, 3, 8, 3}).expandedTo(minimumFace);
}

void drawRing(QPainter& painter, const QRectF& face, qreal outset, const QPen& pen)
{
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(face.marginsAdded({outset, outset, outset, outset}), cellRadius + outset,
                            cellRadius + outset);
}

} // namespace

DayCellPainter::DayCellPainter(const QRect& area, const QFontMetrics& metrics, Qt::LayoutDirection direction)
    : m_area(area)
    , m_face(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, faceSize(metrics), area))
    , m_metrics(metrics)
    , m_direction(direction)
{
}

QSize DayCellPainter::sizeHint(const QFontMetrics& metrics)
{
    return faceSize(metrics).grownBy(cellMargins);
}

QRect DayCellPainter::markArea() const
{
    const int size = m_face.height() * 6 / minimumFace.height();
    const QRect inner = m_face.adjusted(markInset, markInset, -markInset, -markInset);
    return QStyle::alignedRect(m_direction, Qt::AlignHCenter | Qt::AlignBottom, {size, size}, inner);
}

QRect DayCellPainter::noteArea() const
{
    const int size = m_face.height() * 4 / minimumFace.height();
    const QRect inner = m_face.adjusted(noteInset, noteInset, -noteInset, -noteInset);
    return QStyle::alignedRect(m_direction, Qt::AlignRight | Qt::AlignTop, {size, size}, inner);
}

QRect DayCellPainter::numberArea() const
{
    const QRect area(0, 0, m_face.width(), m_metrics.capHeight());
    return area.translated(m_face.center() - area.center() - QPoint(0, numberLift / 2));
}

void DayCellPainter::paint(QPainter& painter, const DayCellLook& look, const Theme& theme) const
{
    const QRectF area = m_face;
    painter.setRenderHint(QPainter::Antialiasing);
    if (look.selected.isSelected)
        paintSelected(painter, look.selected, theme);
    painter.setPen(Qt::NoPen);
    painter.setBrush(look.isDown ? look.tint.darker(115) : look.tint);
    painter.drawRoundedRect(area, cellRadius, cellRadius);
    drawOutline(painter, area, cellRadius, theme);
    if (look.isDayOff)
        drawDayOffOutline(painter, area, cellRadius, look.tint, theme);
    painter.setPen(readableTextOn(look.tint));
    painter.drawText(area.adjusted(0, 0, 0, -numberLift), Qt::AlignCenter, look.number);
    // Clear of the outline.
    drawStateMark(painter, markArea().translated(0, look.isDayOff ? -1 : 0), look.state, painter.pen().color());
    if (look.hasNote) {
        painter.setBrush(painter.pen().color());
        painter.setPen(Qt::NoPen);
        painter.drawEllipse(noteArea());
    }
    if (look.isToday)
        drawRing(painter, area, todayRingOutset, {theme.text, 1.75});
    if (look.isFocused)
        drawRing(painter, area, focusRingOutset, {look.selected.isSelected ? theme.text : theme.accent, 2.0});
}

void DayCellPainter::paintSelected(QPainter& painter, const SelectedRun& run, const Theme& theme) const
{
    // Beside a neighbour that is selected too, the rounded end is out of sight.
    const qreal atPrevious = run.hasPrevious ? -2 * selectedRadius : selectedInset;
    const qreal atNext = run.hasNext ? -2 * selectedRadius : selectedInset;
    const bool isLeftToRight = m_direction == Qt::LeftToRight;
    const QRectF ground = QRectF(m_area).adjusted(isLeftToRight ? atPrevious : atNext, selectedInset,
                                                  isLeftToRight ? -atNext : -atPrevious, -selectedInset);
    QColor color = theme.accent;
    color.setAlphaF(selectedOpacity);
    painter.setPen(QPen(theme.accent, 1.5));
    painter.setBrush(color);
    painter.drawRoundedRect(ground, selectedRadius, selectedRadius);
}
