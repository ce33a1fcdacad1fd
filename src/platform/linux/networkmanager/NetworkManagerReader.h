// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "NetworkManagerState.h"

#include <QDBusArgument>

class QDBusMessage;

/// The interfaces of a bus object, with their properties.
using BusInterfaces = QMap<QString, QVariantMap>;

/// Reads the answer of GetManagedObjects, in pieces that are short enough for the thread of the windows. What is
/// missing, or of another type than it should be, counts as absent.
class NetworkManagerReader {
public:
    explicit NetworkManagerReader(const QDBusMessage& managedObjects);
    ~NetworkManagerReader();
    Q_DISABLE_COPY_MOVE(NetworkManagerReader)

    /// Reads the next piece. True when there is more.
    [[nodiscard]] bool readSome();
    /// What was read so far.
    [[nodiscard]] NetworkManagerState state() const;

private:
    void read(const QString& path, const BusInterfaces& interfaces);

    bool m_isReadable;
    const QDBusArgument m_objects;
    NetworkManagerState m_state;
    QString m_primaryConnection;
    QHash<QString, QStringList> m_devicesOfConnections;
};
