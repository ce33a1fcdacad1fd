// SPDX-License-Identifier: GPL-3.0-or-later
#include "Goal.h"

#include "Rounding.h"

#include <charconv>
#include <cmath>

std::optional<double> goalNumber(const QString& text)
{
    constexpr double largestNumber = 1e15;

    const QByteArray utf8 = text.toUtf8();
    const char* begin = utf8.cbegin();
    // from_chars() accepts a minus sign only.
    if (utf8.startsWith('+') && !utf8.startsWith("+-"))
        ++begin;
    double value = 0.0;
    const auto [end, error] = std::from_chars(begin, utf8.cend(), value);
    if (error != std::errc() || end != utf8.cend() || !(std::abs(value) <= largestNumber))
        return std::nullopt;
    return value;
}

std::optional<QString> Goal::acceptedText(const QString& daysPerWeek)
{
    const auto number = goalNumber(daysPerWeek);
    if (!number || *number < smallest || *number > largest)
        return std::nullopt;
    return QString::number(roundedToTwoDecimals(*number), 'f', 2);
}

std::shared_ptr<Goal> Goal::create(const QString& daysPerWeek, const QString& description)
{
    const auto text = acceptedText(daysPerWeek);
    return text ? std::make_shared<Goal>(QUuid::createUuid(), *text, description) : nullptr;
}

Goal::Goal(const QUuid& goalId, const QString& daysPerWeek, const QString& description)
    : id(goalId)
    , wantedDaysPerWeek(daysPerWeek)
    , desc(description)
{
}

std::optional<double> Goal::value() const
{
    return goalNumber(wantedDaysPerWeek);
}
