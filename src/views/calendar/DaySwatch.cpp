// SPDX-License-Identifier: GPL-3.0-or-later
#include "DaySwatch.h"

#include "StateMark.h"
#include "Theme.h"

#include <QPainter>

DaySwatch::DaySwatch(const Day& day, QWidget* parent)
    : QWidget(parent)
    , m_day(day)
{
    setFixedSize(28, 21);
}

void DaySwatch::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    drawDaySwatch(painter, rect(), themeFor(palette()), m_day);
}
