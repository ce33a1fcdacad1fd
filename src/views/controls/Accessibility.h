// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAccessible>

/// Sets the role that assistive technology sees where Qt cannot know it. Must be set before anything else, because Qt
/// asks only once. Widgets that draw themselves also need an accessible name.
void setAccessibleRole(QWidget& widget, QAccessible::Role role);

/// Makes Qt report these roles. Must be called once, before the first window is built.
void installAccessibleRoles();
