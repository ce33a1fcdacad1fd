// SPDX-License-Identifier: GPL-3.0-or-later
#include "DaySwatch.h"

#include "StateMark.h"
#include "Theme.h"

#include <QPainter>

DaySwatch::DaySwatch(const Day& day, bool isDayOff, QWidget* parent)
    : QWidget(parent)
    , m_day(day)
    , m_isDayOff(isDayOff)
{
    setFixedSize(28, 21);
}

void DaySwatch::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    drawDaySwatch(painter, rect(), themeFor(palette()), m_day, m_isDayOff);
}
