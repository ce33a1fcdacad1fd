// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>

/// A run of days, both ends included.
struct DaySpan {
    QDate first;
    QDate last;

    /// Without days, as one that ends before it begins or is of no valid dates.
    [[nodiscard]] bool isEmpty() const { return !first.isValid() || last < first; }
    [[nodiscard]] bool contains(QDate date) const { return first <= date && date <= last; }
    bool operator==(const DaySpan&) const = default;
};
