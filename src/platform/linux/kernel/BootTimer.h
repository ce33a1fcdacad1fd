// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <chrono>
#include <memory>

class QSocketNotifier;

/// Expires once, after a time in which suspended time counts: when it ends during a suspend, at the resume.
class BootTimer : public QObject {
    Q_OBJECT

public:
    /// Throws a PlatformError when the system gives no timer.
    BootTimer(std::chrono::seconds duration, QObject* parent);
    ~BootTimer() override;

Q_SIGNALS:
    void expired();

private:
    int m_timer;
    std::unique_ptr<QSocketNotifier> m_notifier;
};
