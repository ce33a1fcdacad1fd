// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

/// Lets a word that is wider than its place be cut off. Otherwise a wrapping label would widen the whole page.
[[nodiscard]] inline QLabel* cutLongWords(QLabel* label)
{
    label->setMinimumWidth(1);
    return label;
}
