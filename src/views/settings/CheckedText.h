// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The text of a row with its check state, which screen readers do not say of the rows of a tree.
[[nodiscard]] QString checkedText(const QString& text, Qt::CheckState state);
