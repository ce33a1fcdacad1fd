// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <chrono>
#include <memory>

class QSocketNotifier;

/// Expires once, after a time that includes suspends; if it ends during one, on resume.
class BootTimer : public QObject {
    Q_OBJECT

public:
    /// Throws a PlatformError if the system has no timer left.
    BootTimer(std::chrono::seconds duration, QObject* parent);
    ~BootTimer() override;

Q_SIGNALS:
    void expired();

private:
    int m_timer;
    std::unique_ptr<QSocketNotifier> m_notifier;
};
