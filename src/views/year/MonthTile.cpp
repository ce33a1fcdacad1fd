// SPDX-License-Identifier: GPL-3.0-or-later
#include "MonthTile.h"

#include "DayTexts.h"
#include "Fonts.h"
#include "GridOrder.h"
#include "Labels.h"
#include "Outline.h"
#include "StateMark.h"
#include "Theme.h"
#include "ViewSettings.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include <algorithm>

namespace {

constexpr int tilePadding = 6;
constexpr int titleGap = 2;
// In the usual font, with which they grow.
constexpr int leastPitch = 19;
constexpr int greatestPitch = 26;
constexpr int smallCellGap = 2;
constexpr qreal smallCellRadius = 4.0;

} // namespace

MonthTile::MonthTile(const CountingRecords& counting, const ViewSettings& viewSettings, QWidget* parent)
    : FlatButton(parent)
    , m_counting(counting)
    , m_viewSettings(viewSettings)
    , m_letterFont(fonts::caption(font()))
{
    setFont(fonts::body(font(), QFont::Bold));
}

void MonthTile::setContents(const Contents& contents)
{
    if (contents == m_contents)
        return;
    m_contents = contents;
    setAccessibleName(spokenName());
    update();
}

QString MonthTile::spokenName() const
{
    return tr("%1 %2, %3 of %n workdays in office", "month and year", static_cast<int>(m_contents.workdays))
        .arg(m_contents.name, QString::number(m_contents.first.year()), QString::number(m_contents.inOffice));
}

void MonthTile::setPitch(int pitch)
{
    m_pitch = pitch;
    setFixedSize(widthFor(pitch), gridTop() + GridOrder::rows * rowPitch() + tilePadding);
    update();
}

int MonthTile::widthFor(int pitch) const
{
    return GridOrder::columns * pitch + 2 * tilePadding;
}

int MonthTile::pitchFor(int width) const
{
    return std::clamp((width - 2 * tilePadding) / GridOrder::columns, fonts::grown(leastPitch, QFont()),
                      fonts::grown(greatestPitch, QFont()));
}

int MonthTile::leastWidth() const
{
    return widthFor(fonts::grown(leastPitch, QFont()));
}

int MonthTile::gridTop() const
{
    return tilePadding + fontMetrics().height() + titleGap + QFontMetrics(m_letterFont).height();
}

QRect MonthTile::cellRect(int day) const
{
    const int place = m_contents.firstColumn + day - 1;
    const QPoint corner(tilePadding + place % GridOrder::columns * m_pitch,
                        gridTop() + place / GridOrder::columns * rowPitch());
    return QStyle::visualRect(layoutDirection(), rect(), {corner, QSize(m_pitch, rowPitch())});
}

int MonthTile::dayAt(QPoint place) const
{
    for (int day = 1; day <= m_contents.cells.size(); ++day) {
        if (cellRect(day).contains(place))
            return day;
    }
    return 0;
}

QString MonthTile::helpAt(int day) const
{
    if (day == 0)
        return accessibleName();
    const QDate date = m_contents.first.addDays(day - 1);
    return DayTexts(m_counting).spoken(date, m_contents.cells.at(day - 1).day.state);
}

bool MonthTile::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return FlatButton::event(event);
    const auto& help = *static_cast<QHelpEvent*>(event);
    const int day = dayAt(help.pos());
    if (m_viewSettings.showStatusLabelOnHover)
        QToolTip::showText(help.globalPos(), labels::help(helpAt(day)), this, day > 0 ? cellRect(day) : QRect());
    return true;
}

void MonthTile::paintEvent(QPaintEvent* /*event*/)
{
    const Theme& theme = themeFor(palette());
    QPainter painter(this);
    paintFace(painter, theme.page);
    paintHeader(painter, theme);
    for (int day = 1; day <= m_contents.cells.size(); ++day)
        paintCell(painter, theme, day);
}

void MonthTile::paintHeader(QPainter& painter, const Theme& theme) const
{
    const bool isLeftToRight = layoutDirection() == Qt::LeftToRight;
    // Text that is laid out in a rectangle takes several times as long.
    const auto draw = [&](const QString& text, bool isAtLeft, int baseline) {
        const int width = painter.fontMetrics().horizontalAdvance(text);
        painter.drawText(isAtLeft ? tilePadding + smallCellGap : this->width() - tilePadding - smallCellGap - width,
                         baseline, text);
    };
    const int baseline = tilePadding + fontMetrics().ascent();
    painter.setPen(theme.text);
    draw(m_contents.name, isLeftToRight, baseline);
    painter.setFont(m_letterFont);
    painter.setPen(theme.dimText);
    draw(tr("%1/%2", "days in the office, and workdays").arg(m_contents.inOffice).arg(m_contents.workdays),
         !isLeftToRight, baseline);
    const int letterBaseline = gridTop() - painter.fontMetrics().descent();
    for (int column = 0; column < m_contents.weekdays.size(); ++column) {
        const QString& letter = m_contents.weekdays.at(column);
        const int left = tilePadding + column * m_pitch;
        const int middle = isLeftToRight ? left + m_pitch / 2 : width() - left - m_pitch / 2;
        painter.drawText(middle - painter.fontMetrics().horizontalAdvance(letter) / 2, letterBaseline, letter);
    }
}

void MonthTile::paintCell(QPainter& painter, const Theme& theme, int day) const
{
    const Cell& cell = m_contents.cells.at(day - 1);
    constexpr qreal inset = smallCellGap / 2.0;
    const QRectF face = QRectF(cellRect(day)).adjusted(inset, inset, -inset, -inset);
    const QColor color = dayColor(theme, cell.day);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(face, smallCellRadius, smallCellRadius);
    drawOutline(painter, face, smallCellRadius, theme);
    if (cell.isDayOff)
        drawDayOffOutline(painter, face, smallCellRadius, color, theme);
    constexpr qreal markPart = 0.42;
    QRectF mark({}, QSizeF(1, 1) * qRound(markPart * face.height()));
    mark.moveCenter(face.center());
    drawStateMark(painter, mark, cell.day.state, readableTextOn(color));
    if (day != m_contents.today)
        return;
    painter.setPen(QPen(theme.text, 1.75));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(face.adjusted(-inset, -inset, inset, inset), smallCellRadius + inset,
                            smallCellRadius + inset);
}
