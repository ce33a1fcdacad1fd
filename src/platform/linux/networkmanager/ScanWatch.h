// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <QCoroTask>

#include <chrono>

class QDBusMessage;

/// Hears of the end of a scan of one device, from its creation on.
class ScanWatch : public QObject {
    Q_OBJECT

public:
    ScanWatch(const QString& devicePath, QObject* parent);

    /// Waits until the scan has ended, or for so long. Throws Abandoned when this is destroyed.
    [[nodiscard]] QCoro::Task<> wait(std::chrono::milliseconds longest);

Q_SIGNALS:
    void ended();

private:
    bool m_hasScanned = false;

private Q_SLOTS:
    void handlePropertiesChanged(const QDBusMessage& signal);
};
