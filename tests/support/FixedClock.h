// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Clock.h"

/// A clock that stands still in the morning of a day until another day begins.
class FixedClock : public Clock {
public:
    [[nodiscard]] QDateTime now() const override { return m_now; }

    void beginDay(QDate date)
    {
        m_now.setDate(date);
        Q_EMIT dayChanged();
    }

private:
    QDateTime m_now{QDate(2026, 11, 20), QTime(9, 0)};
};
