// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

/// Moves the focus of a window to the control that is next or previous on the screen: row by row, and each container as
/// a whole. For focusNextPrevChild() of windows; Qt goes by the order in which the controls were made. Returns whether
/// there is one.
bool moveFocus(QWidget& window, bool next);
