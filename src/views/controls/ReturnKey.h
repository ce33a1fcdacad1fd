// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QAbstractButton;
class QKeyEvent;

[[nodiscard]] bool isReturn(const QKeyEvent& event);

/// Lets Return click a button, and returns whether it was Return. Qt does so on some desktops only, and in a dialog
/// presses the default button instead.
bool clickByReturn(QAbstractButton& button, const QKeyEvent& event);
