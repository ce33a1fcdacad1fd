// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

class QFont;

/// The first lines of a text that is wrapped to a width, without empty ones. What does not fit is elided.
[[nodiscard]] QStringList elidedLines(const QString& text, const QFont& font, int width, qsizetype count);
