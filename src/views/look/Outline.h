// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

class QColor;
class QPainter;
class QRectF;
class QWidget;
struct Theme;

/// Draws the outline that high contrast gives to what would differ from its ground by colour alone.
void drawOutline(QPainter& painter, const QRectF& area, qreal radius, const Theme& theme);

/// Draws the thin outline of a day off, inside the face of the day and the outline of high contrast.
void drawDayOffOutline(QPainter& painter, const QRectF& face, qreal radius, const QColor& tint, const Theme& theme);

/// Draws the ground and the border of a text field, which tells whether it has the focus.
void drawField(QWidget& field);
