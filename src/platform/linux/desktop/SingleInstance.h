// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLockFile>
#include <QObject>
#include <QVariantMap>

#include <chrono>
#include <optional>

class QDBusConnection;
class QDBusMessage;

/// Sees to it that a session runs this program once (org.freedesktop.Application on the session bus).
class SingleInstance : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    enum class Claim { Owned, HandedOver, Refused };
    /// What the one that is there already has to do.
    enum class Request { None, Show, Check };

    /// Reads from the environment what the desktop gave for the start. A QApplication takes some of that away.
    explicit SingleInstance(std::chrono::milliseconds timeout = std::chrono::seconds(5));

    /// Becomes the one instance or hands over to the one that is there; refused when that has an request and is deaf.
    [[nodiscard]] Claim claim(Request request);
    [[nodiscard]] Claim claim(Request request, QDBusConnection bus);

    // NOLINTBEGIN(readability-identifier-naming): the names of the interface
    Q_SCRIPTABLE Q_SLOT void Activate(const QVariantMap& data);
    Q_SCRIPTABLE Q_SLOT void Open(const QStringList&, const QVariantMap& data) { Activate(data); }
    Q_SCRIPTABLE Q_SLOT void ActivateAction(const QString& name, const QVariantList&, const QVariantMap& data);
    // NOLINTEND(readability-identifier-naming)

Q_SIGNALS:
    /// Somebody wants to see the program. With the token its window may come to the front; it can be empty.
    void activated(const QString& token);
    void checkRequested();

private:
    [[nodiscard]] QDBusMessage messageFor(Request request) const;
    [[nodiscard]] Claim claimLock();

    int m_timeout;
    QVariantMap m_platformData;
    std::optional<QLockFile> m_lock;
};
