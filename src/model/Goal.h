// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProperty>
#include <QUuid>

#include <memory>
#include <optional>

/// A wanted average of days in the office per week.
class Goal {
public:
    /// The values that a goal can be created with, both included.
    static constexpr double smallest = 0.1;
    static constexpr double largest = 7.0;

    /// A goal with a fresh identity, or none when the text is no number or lies outside `smallest` to `largest`.
    [[nodiscard]] static std::shared_ptr<Goal> create(const QString& daysPerWeek, const QString& description);

    /// The text with two decimals, as a goal keeps it; none where create() refuses it.
    [[nodiscard]] static std::optional<QString> acceptedText(const QString& daysPerWeek);

    /// A goal that was stored earlier.
    Goal(const QUuid& storedId, const QString& daysPerWeek, const QString& description);
    Goal(const Goal&) = delete;
    Goal& operator=(const Goal&) = delete;
    ~Goal() = default;

    /// The number in `wantedDaysPerWeek`, as goalNumber() reads it.
    [[nodiscard]] std::optional<double> value() const;

    const QUuid id;
    /// Days per week as decimal text. A new goal has two decimals ("3.00"); while it is edited it may hold anything.
    QProperty<QString> wantedDaysPerWeek;
    QProperty<QString> desc;
};

/// The whole text read as a decimal number with a point, whatever the locale. White space anywhere, infinities, "nan"
/// and numbers too large to count days with (beyond 10^15) are no number.
[[nodiscard]] std::optional<double> goalNumber(const QString& text);
