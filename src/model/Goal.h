// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProperty>
#include <QUuid>

#include <memory>
#include <optional>

/// An average of days in the office per week that the person wants to reach.
class Goal {
public:
    /// The range of values that a goal can be created with, both included.
    static constexpr double smallest = 0.1;
    static constexpr double largest = 7.0;

    /// A goal with a new id; null if the text is not a number from `smallest` to `largest`.
    [[nodiscard]] static std::shared_ptr<Goal> create(const QString& daysPerWeek, const QString& description);

    /// The text with two decimals, as a goal keeps it; nothing if create() refuses it.
    [[nodiscard]] static std::optional<QString> acceptedText(const QString& daysPerWeek);

    /// An empty goal, for the store to fill.
    Goal() = default;
    Goal(const QUuid& goalId, const QString& daysPerWeek, const QString& description);
    Goal(const Goal&) = delete;
    Goal& operator=(const Goal&) = delete;
    ~Goal() = default;

    /// The number in `wantedDaysPerWeek`, as goalNumber() reads it.
    [[nodiscard]] std::optional<double> value() const;

    /// Never changes.
    QUuid id;
    /// Days per week as decimal text. A new goal has two decimals ("3.00"); while it is edited it may hold anything.
    QProperty<QString> wantedDaysPerWeek;
    QProperty<QString> desc;
};

/// The whole text read as a decimal number with a point, whatever the locale. Nothing for white space anywhere,
/// infinities, "nan" and numbers too large to count days with (beyond 10^15).
[[nodiscard]] std::optional<double> goalNumber(const QString& text);
