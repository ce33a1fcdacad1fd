// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "TrayHost.h"

/// The hosts that the watcher of status notifier items on the session bus knows.
class StatusNotifierHost : public TrayHost {
    Q_OBJECT

public:
    void start() override;

private:
    void report(bool hasHost);

    bool m_hasHost = false;
    /// Replies to all requests but the last are outdated.
    int m_requests = 0;

private Q_SLOTS:
    void readHost();
};
