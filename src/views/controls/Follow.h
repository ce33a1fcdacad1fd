// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>
#include <QProperty>

/// Calls `update` now and after every change of a field, for as long as the owner lives.
template <class Field, class Update> void follow(Field& field, QObject* owner, Update update)
{
    struct Follower : QObject {
        using QObject::QObject;
        QPropertyNotifier notifier;
    };
    auto* follower = new Follower(owner);
    follower->notifier = field.addNotifier(update);
    update();
}

/// A switch shows a field, and sets it when the person uses it.
inline void bindSwitch(QAbstractButton* toggle, QProperty<bool>& field)
{
    follow(field, toggle, [toggle, &field] { toggle->setChecked(field); });
    // Not clicked(): what assistive technology toggles has not been clicked.
    QObject::connect(toggle, &QAbstractButton::toggled, toggle, [&field](bool on) { field = on; });
}
