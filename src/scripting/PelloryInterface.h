// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DayCommands.h"

#include <QDBusAbstractAdaptor>

#include <type_traits>

class QDBusMessage;
class ScriptService;

/// The interface for scripts on the session bus, as data/dbus-interfaces describes it. It stays while the program
/// starts over with another store, and is served by one service at a time.
class PelloryInterface : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "io.github.pellory.Pellory1")

public:
    /// `host` is the object that is registered on the bus.
    explicit PelloryInterface(QObject& host);

    /// Without a service nothing can be done.
    void serve(ScriptService* service) { m_service = service; }

    // NOLINTBEGIN(readability-identifier-naming): names set by the interface
public Q_SLOTS:
    QVariantMap GetStatus(const QDBusMessage& call);
    void Mark(const QString& date, const QString& state, const QDBusMessage& call);
    void MarkDays(const QMap<QString, QString>& states, const QDBusMessage& call);
    void Undo(const QDBusMessage& call);
    void RunCheck(const QDBusMessage& call);
    QString Export(const QDBusMessage& call);
    QString Backup(const QDBusMessage& call);

Q_SIGNALS:
    void Changed();
    // NOLINTEND(readability-identifier-naming)

private:
    template <class Action>
    std::invoke_result_t<Action, ScriptService&> answer(const QDBusMessage& call, Action action);

    ScriptService* m_service = nullptr;
};
