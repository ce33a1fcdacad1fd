// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>

class QAbstractButton;
class QHBoxLayout;
class QLineEdit;

/// A field with a button beside it. Return and the button both call `accept` with the text; Return also clears the
/// field if the text was accepted.
[[nodiscard]] QHBoxLayout* makeEntryRow(QLineEdit* field, QAbstractButton* button,
                                        const std::function<bool(const QString& text)>& accept);
