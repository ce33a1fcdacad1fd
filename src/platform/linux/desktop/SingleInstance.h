// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QVariantMap>

#include <chrono>

class QDBusConnection;
class QDBusMessage;

/// Makes sure that a session runs this program only once (org.freedesktop.Application on the session bus). Adaptors
/// that become its children add their interfaces to the same object, at any time.
class SingleInstance : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    enum class Claim { Owned, HandedOver, Refused };
    /// What the first instance is asked to do.
    enum class Request { None, Show, Check };

    /// Reads the desktop's start-up data from the environment; create it before QApplication, which removes some of it.
    /// `timeout` is how long the first instance may take to answer.
    explicit SingleInstance(std::chrono::milliseconds timeout = std::chrono::seconds(5));

    /// Becomes the instance, also if there is no bus to ask, or hands the request over to the first one. Refused if
    /// that does not answer.
    [[nodiscard]] Claim claim(Request request);
    [[nodiscard]] Claim claim(Request request, QDBusConnection bus);

    // NOLINTBEGIN(readability-identifier-naming): names set by the interface
    Q_SCRIPTABLE Q_SLOT void Activate(const QVariantMap& data);
    Q_SCRIPTABLE Q_SLOT void Open(const QStringList&, const QVariantMap& data) { Activate(data); }
    Q_SCRIPTABLE Q_SLOT void ActivateAction(const QString& name, const QVariantList&, const QVariantMap& data);
    // NOLINTEND(readability-identifier-naming)

Q_SIGNALS:
    /// The person has started the program again. The token lets its window come to the front; it may be empty.
    void activated(const QString& token);
    void checkRequested();

private:
    [[nodiscard]] QDBusMessage messageFor(Request request) const;

    int m_timeout;
    QVariantMap m_platformData;
};
