// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "TrayHost.h"

/// The hosts of status notifier items, of which their watcher on the session bus knows.
class StatusNotifierHost : public TrayHost {
    Q_OBJECT

public:
    void start() override;

private:
    void report(bool isThere);

    bool m_isThere = false;
    /// The answers to all questions but the last one are out of date.
    int m_questions = 0;

private Q_SLOTS:
    void ask();
};
