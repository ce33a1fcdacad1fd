// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>

class QAbstractButton;
class QHBoxLayout;
class QLineEdit;

/// A field with a button beside it. Both hand the text on; Return empties the field when the text was taken, and the
/// button leaves it.
[[nodiscard]] QHBoxLayout* makeEntryRow(QLineEdit* field, QAbstractButton* button,
                                        const std::function<bool(const QString& text)>& take);
