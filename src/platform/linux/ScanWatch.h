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
    ScanWatch(QString devicePath, QObject* parent);
    ~ScanWatch() override;

    /// Waits until the scan has ended, or for so long. Throws Abandoned when this is destroyed.
    [[nodiscard]] QCoro::Task<> wait(std::chrono::milliseconds longest);

Q_SIGNALS:
    void ended();

private:
    QString m_devicePath;
    bool m_hasScanned = false;

private Q_SLOTS:
    void handlePropertiesChanged(const QDBusMessage& signal);
};
