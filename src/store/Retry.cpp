// SPDX-License-Identifier: GPL-3.0-or-later
#include "Retry.h"

#include <algorithm>

Retry::Retry(std::function<void()> action)
{
    m_timer.setSingleShot(true);
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, std::move(action));
}

void Retry::setNeeded(bool isNeeded)
{
    if (!isNeeded) {
        m_timer.stop();
        m_nextDelay = shortestDelay;
    } else if (!m_timer.isActive()) {
        m_timer.start(m_nextDelay);
        m_nextDelay = std::min(2 * m_nextDelay, longestDelay);
    }
}
