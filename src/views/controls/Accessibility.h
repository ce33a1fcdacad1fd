// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAccessible>

/// Sets the role that assistive technology sees, for widgets whose role Qt cannot know. Must be called first thing on a
/// new widget, because Qt asks for the role only once. Widgets that draw themselves need an accessible name too.
void setAccessibleRole(QWidget& widget, QAccessible::Role role);

/// Makes Qt report these roles. Must be called once, before the first window is built.
void installAccessibleRoles();
