// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QColor;
class QPainter;
class QRectF;
class QString;

/// Draws one of the symbols under data/icons, such as "lessthan", in one colour.
void drawSymbol(QPainter& painter, const QRectF& place, const QString& name, const QColor& color);
