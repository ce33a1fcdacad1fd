// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTimer>

#include <chrono>
#include <functional>

/// Repeats an action while it is needed: after a second, and then ever more rarely, up to once a minute. Otherwise no
/// timer runs.
class Retry {
public:
    explicit Retry(std::function<void()> action);

    /// To be told after each attempt. One that is made in between does not put off the next.
    void setNeeded(bool isNeeded);

private:
    static constexpr std::chrono::seconds shortestDelay{1};
    static constexpr std::chrono::seconds longestDelay{60};

    QTimer m_timer;
    std::chrono::seconds m_nextDelay = shortestDelay;
};
