// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAccessible>

#include <functional>

/// Sets the role that assistive technology sees, for widgets whose role Qt cannot know. Must be called first thing on a
/// new widget, because Qt asks only once whether there is one. Widgets that draw themselves need an accessible name
/// too. A window also has its popups among its children. Later calls change the role.
void setAccessibleRole(QWidget& widget, QAccessible::Role role);

/// Like setAccessibleRole(), for a button with a context menu, which assistive technology can then open.
void setAccessibleMenuButton(QWidget& widget);

/// Makes Qt report these roles. Must be called once, before the first window is built.
void installAccessibleRoles();

/// Makes a screen reader say a text, after what it is saying now.
void announce(QWidget& about, const QString& text);

/// Makes a screen reader say the new accessible name of the widget that has the focus.
void announceNewName(QWidget& widget);

/// Announces a text whenever the widget appears.
void announceWhenShown(QWidget& widget, std::function<QString()> text);
