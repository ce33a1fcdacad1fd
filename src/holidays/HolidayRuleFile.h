// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "HolidayRule.h"

#include <stdexcept>

/// A country, or one of its regions, that a person can choose.
struct RuleArea {
    QString id;
    /// Of the region; empty for the whole country.
    QString name;
};

struct HolidayCountry {
    QString name;
    QList<RuleArea> areas;
    QList<HolidayRule> rules;
};

/// A line of a rule file that cannot be read.
class HolidayRuleError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Reads the form that the head of data/holidays/public-holidays.txt describes. Throws a HolidayRuleError.
[[nodiscard]] QList<HolidayCountry> readHolidayRules(QStringView text);
