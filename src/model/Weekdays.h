// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>

/// A set of days of the week.
class Weekdays {
public:
    constexpr Weekdays() = default;
    /// A bit for each day, the lowest for Monday. Bits beyond Sunday are ignored.
    constexpr explicit Weekdays(int bits)
        : m_bits(bits & allBits)
    {
    }

    [[nodiscard]] static constexpr Weekdays all() { return Weekdays(allBits); }
    [[nodiscard]] static constexpr Weekdays mondayToFriday() { return Weekdays(0b11111); }

    [[nodiscard]] constexpr bool contains(int dayOfWeek) const { return ((m_bits >> (dayOfWeek - 1)) & 1) != 0; }
    [[nodiscard]] bool contains(QDate date) const { return contains(date.dayOfWeek()); }
    [[nodiscard]] constexpr Weekdays with(int dayOfWeek, bool isIn) const
    {
        const int bit = 1 << (dayOfWeek - 1);
        return Weekdays(isIn ? m_bits | bit : m_bits & ~bit);
    }
    [[nodiscard]] constexpr bool isEmpty() const { return m_bits == 0; }
    [[nodiscard]] constexpr int bits() const { return m_bits; }

    constexpr bool operator==(const Weekdays&) const = default;

private:
    static constexpr int allBits = 0b1111111;

    int m_bits = 0;
};
