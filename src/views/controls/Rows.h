// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>

class QAbstractButton;
class QBoxLayout;
class QHBoxLayout;
class QLineEdit;
class QWidget;

/// Adds a row to a column with the widget centred in it. An alignment would centre it too, but would compute the height
/// of wrapped text for the width of the whole column.
void addCentred(QBoxLayout& column, QWidget* widget);

/// A field with a button beside it. Return and the button both call `accept` with the text; Return also clears the
/// field if the text was accepted.
[[nodiscard]] QHBoxLayout* makeEntryRow(QLineEdit* field, QAbstractButton* button,
                                        const std::function<bool(const QString& text)>& accept);
