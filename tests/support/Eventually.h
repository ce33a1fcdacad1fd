// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTest>

/// Waits for a condition, but not for ever.
template <class Condition> [[nodiscard]] bool eventually(Condition condition)
{
    return QTest::qWaitFor(condition, 10'000);
}
