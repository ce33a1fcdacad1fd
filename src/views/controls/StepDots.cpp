// SPDX-License-Identifier: GPL-3.0-or-later
#include "StepDots.h"

#include "Accessibility.h"
#include "Theme.h"

#include <QPainter>

namespace {

constexpr int diameter = 8;
constexpr int dotDistance = 16;

} // namespace

StepDots::StepDots(int count, QWidget* parent)
    : QWidget(parent)
    , m_count(count)
{
    setAccessibleRole(*this, QAccessible::Graphic);
    setFixedSize((count - 1) * dotDistance + diameter + 2, diameter + 2);
}

void StepDots::setCurrent(int current)
{
    m_current = current;
    setAccessibleName(tr("Step %1 of %2").arg(current + 1).arg(m_count));
    update();
}

void StepDots::paintEvent(QPaintEvent* /*event*/)
{
    const Theme& theme = themeFor(palette());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int step = 0; step < m_count; ++step) {
        const int place = layoutDirection() == Qt::LeftToRight ? step : m_count - 1 - step;
        painter.setPen(step <= m_current ? theme.accent : theme.dimText);
        painter.setBrush(step <= m_current ? QBrush(theme.accent) : QBrush(Qt::NoBrush));
        painter.drawEllipse(QRectF(place * dotDistance + 1, 1, diameter, diameter));
    }
}
