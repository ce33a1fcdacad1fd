// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QProperty>

#include <utility>

/// Calls `update` after every change of a field, for as long as both the field and the owner live.
template <class Field, class Update> void onChange(const Field& field, QObject* owner, Update update)
{
    struct Follower : QObject {
        Follower(const Field& followed, Update handler, QObject* parent)
            : QObject(parent)
            , notifier(followed, std::move(handler))
        {
        }
        QPropertyNotifier notifier;
    };
    new Follower(field, std::move(update), owner);
}

/// Like onChange(), but also calls `update` at once.
template <class Field, class Update> void follow(const Field& field, QObject* owner, Update update)
{
    onChange(field, owner, update);
    update();
}
