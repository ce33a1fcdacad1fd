// SPDX-License-Identifier: GPL-3.0-or-later
#include "PlanHead.h"

#include "Fonts.h"
#include "PlanGrid.h"
#include "Theme.h"

#include <QPainter>

namespace {

// To the weeks that are scrolled.
constexpr int headGap = 4;

} // namespace

PlanHead::PlanHead(const PlanGrid& grid, QWidget* parent)
    : QWidget(parent)
    , m_grid(grid)
{
    setFont(fonts::body(font()));
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QSize PlanHead::sizeHint() const
{
    return {0, fontMetrics().height() + headGap};
}

void PlanHead::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setPen(themeFor(palette()).dimText);
    for (const PlanGrid::Column& column : m_grid.columns()) {
        QRect place(0, 0, fontMetrics().horizontalAdvance(column.name), height() - headGap);
        place.moveLeft(column.centre - place.width() / 2);
        painter.drawText(place, Qt::AlignCenter | Qt::TextDontClip, column.name);
    }
}
