// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QFileDialog;
class QWidget;
class ViewSettings;

/// A dialog that starts in the folder of the last file, remembers the folder of the chosen one, and deletes itself once
/// it is closed. `name` is its object name.
[[nodiscard]] QFileDialog& makeFileDialog(const char* name, const QString& title, ViewSettings& viewSettings,
                                          QWidget* parent);
