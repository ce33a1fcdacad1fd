// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>

/// Text sizes in proportion to the desktop's font. There are few, because every size and weight that is shown adds
/// about half a millisecond to start-up.
namespace fonts {

[[nodiscard]] inline QFont scaled(QFont font, double factor, QFont::Weight weight = QFont::Normal)
{
    font.setPointSizeF(font.pointSizeF() * factor);
    font.setWeight(weight);
    return font;
}

[[nodiscard]] inline QFont title(const QFont& base)
{
    return scaled(base, 1.75, QFont::Bold);
}

[[nodiscard]] inline QFont headline(const QFont& base)
{
    return scaled(base, 1.25);
}

[[nodiscard]] inline QFont body(const QFont& base, QFont::Weight weight = QFont::Normal)
{
    return scaled(base, 1.05, weight);
}

[[nodiscard]] inline QFont caption(const QFont& base)
{
    return scaled(base, 0.9);
}

/// A length in proportion to the desktop's font, but never less than in a font of the usual size.
[[nodiscard]] int grown(int length, const QFont& base);

} // namespace fonts
