// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "NetworkManagerState.h"

#include <QDBusArgument>

class QDBusMessage;

/// The interfaces of a bus object, with their properties.
using BusInterfaces = QMap<QString, QVariantMap>;

/// Reads the reply to GetManagedObjects, in chunks short enough for the main thread. Values of an unexpected type count
/// as missing.
class NetworkManagerReader {
public:
    explicit NetworkManagerReader(const QDBusMessage& managedObjects);
    ~NetworkManagerReader();
    Q_DISABLE_COPY_MOVE(NetworkManagerReader)

    /// Reads the next chunk, and returns whether there is more.
    [[nodiscard]] bool readSome();
    /// What has been read so far.
    [[nodiscard]] NetworkManagerState state() const;

private:
    void read(const QString& path, const BusInterfaces& interfaces);

    bool m_isReadable;
    const QDBusArgument m_objects;
    NetworkManagerState m_state;
    QString m_primaryConnection;
    QHash<QString, QStringList> m_devicesOfConnections;
};
