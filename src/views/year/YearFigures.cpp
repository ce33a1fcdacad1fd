// SPDX-License-Identifier: GPL-3.0-or-later
#include "YearFigures.h"

#include "Fonts.h"
#include "ProgressWidgetView.h"
#include "StatisticsTexts.h"
#include "Theme.h"

#include <QPainter>
#include <QStyle>

namespace {

constexpr int figureColumns = 4;
constexpr int rowGap = 4;
constexpr int yearGap = 6;

} // namespace

YearFigures::YearFigures(QWidget* parent)
    : SpokenGroup(0, parent)
{
    setFont(fonts::body(font()));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void YearFigures::setRows(const QList<Row>& rows)
{
    if (rows == m_rows)
        return;
    if (rows.size() != m_rows.size())
        updateGeometry();
    m_rows = rows;
    speak();
    update();
}

void YearFigures::speak()
{
    QStringList texts;
    for (const Row& row : m_rows) {
        texts.append(tr("%1: %2 of %n workdays in office, %3 days per week on average", "quarter or year",
                        static_cast<int>(row.workdays))
                         .arg(row.name, QString::number(row.inOffice), twoDecimals(row.average)));
    }
    setSpokenText(tr("Figures of the year"), texts);
}

int YearFigures::rowHeight() const
{
    return fontMetrics().height() + rowGap;
}

QSize YearFigures::sizeHint() const
{
    const auto rows = static_cast<int>(m_rows.size()) + 1;
    return {ProgressWidgetView::columnWidth(QFont()) + 2 * ringRoom, rows * rowHeight() + yearGap + 2 * ringRoom};
}

void YearFigures::paintEvent(QPaintEvent* event)
{
    const Theme& theme = themeFor(palette());
    QPainter painter(this);
    painter.setPen(theme.dimText);
    paintRow(painter, 0, {{}, tr("In Office"), tr("Workdays"), tr("Average")});
    painter.setPen(theme.text);
    for (int i = 0; i < m_rows.size(); ++i) {
        const Row& row = m_rows.at(i);
        if (i == m_rows.size() - 1) {
            const int line = ringRoom + (i + 1) * rowHeight() + rowGap / 2;
            painter.fillRect(ringRoom, line, width() - 2 * ringRoom, 1, theme.border);
            painter.setFont(fonts::scaled(font(), 1.0, QFont::Bold));
            painter.translate(0, yearGap);
        }
        paintRow(painter, i + 1,
                 {row.name, QString::number(row.inOffice), QString::number(row.workdays), twoDecimals(row.average)});
    }
    painter.end();
    SpokenGroup::paintEvent(event);
}

void YearFigures::paintRow(QPainter& painter, int row, const QStringList& texts) const
{
    const QRect line(ringRoom, ringRoom + row * rowHeight(), width() - 2 * ringRoom, rowHeight());
    const int columnWidth = line.width() / figureColumns;
    for (int column = 0; column < figureColumns; ++column) {
        const QRect place(line.left() + column * columnWidth, line.top(), columnWidth, line.height());
        const Qt::Alignment side = column == 0 ? Qt::AlignLeft : Qt::AlignRight;
        const QString text = painter.fontMetrics().elidedText(texts.at(column), Qt::ElideRight, columnWidth);
        painter.drawText(QStyle::visualRect(layoutDirection(), line, place),
                         static_cast<int>(QStyle::visualAlignment(layoutDirection(), side) | Qt::AlignVCenter), text);
    }
}
