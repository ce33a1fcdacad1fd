// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

class QPainter;
class QRectF;
struct Theme;

/// Draws the outline that high contrast gives to what would differ from its ground by colour alone.
void drawOutline(QPainter& painter, const QRectF& area, qreal radius, const Theme& theme);
