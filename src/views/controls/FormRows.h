// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QFormLayout;
class QLabel;
class QWidget;

/// Returns the new layout of a form: rows of fields, each with its name before it, or above it if there is no room.
[[nodiscard]] QFormLayout* makeFormRows(QWidget& form);

/// Returns the name of a field, or other words beside one.
[[nodiscard]] QLabel* besideField(const QString& words);
