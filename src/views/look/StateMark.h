// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DayState.h"

class QColor;
class QPainter;
class QRectF;
struct Day;
struct Theme;

/// Draws the mark of a state in a square area, so that states differ by more than their colour. Unknown has none.
void drawStateMark(QPainter& painter, const QRectF& area, DayState state, const QColor& color);

/// Draws a small picture of a day's cell, with its colour and mark, and the outline of a day off.
void drawDaySwatch(QPainter& painter, const QRectF& area, const Theme& theme, const Day& day, bool isDayOff = false);
