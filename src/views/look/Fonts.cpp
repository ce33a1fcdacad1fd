// SPDX-License-Identifier: GPL-3.0-or-later
#include "Fonts.h"

#include <QGuiApplication>
#include <QScreen>

namespace {

// As QFontInfo does, but without loading a font that may never be drawn.
int pixelSize(const QFont& font)
{
    constexpr double pointsPerInch = 72.0;
    return font.pixelSize() > 0
               ? font.pixelSize()
               : qRound(font.pointSizeF() * qApp->primaryScreen()->logicalDotsPerInchY() / pointsPerInch);
}

} // namespace

int fonts::grown(int length, const QFont& base)
{
    constexpr double usualPixelSize = 15.0;
    return qRound(length * qMax(1.0, pixelSize(base) / usualPixelSize));
}
