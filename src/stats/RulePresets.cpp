// SPDX-License-Identifier: GPL-3.0-or-later
#include "RulePresets.h"

#include <QCoreApplication>

namespace {

struct RulePresets {
    Q_DECLARE_TR_FUNCTIONS(RulePresets)
};

using Rule = AttendanceRule;

// A number of days stays the same whatever the workdays; an average does not, so that leave that is left out of the
// workdays needs no make-up.
QList<Rule> officeRules()
{
    return {
        {.name = RulePresets::tr("3 days every week"), .span = Rule::Span::Week},
        {.name = RulePresets::tr("3 days a week over the last 8 weeks"), .span = Rule::Span::LastWeeks, .weeks = 8},
        {.name = RulePresets::tr("4 days a week on average over a month"), .amount = 400},
        {.name = RulePresets::tr("2 days in two weeks"),
         .amount = 200,
         .unit = Rule::Unit::Days,
         .span = Rule::Span::TwoWeeks},
        {.name = RulePresets::tr("Half of two weeks"),
         .amount = 5000,
         .unit = Rule::Unit::PercentOfWorkdays,
         .span = Rule::Span::TwoWeeks},
        {.name = RulePresets::tr("12 days a month"), .amount = 1200, .unit = Rule::Unit::Days},
        {.name = RulePresets::tr("60 % of the workdays of a month"),
         .amount = 6000,
         .unit = Rule::Unit::PercentOfWorkdays},
        {.name = RulePresets::tr("Two Fridays a month"),
         .amount = 200,
         .unit = Rule::Unit::Days,
         .weekdays = Weekdays().with(Qt::Friday, true)},
        {.name = RulePresets::tr("10 days a quarter"),
         .amount = 1000,
         .unit = Rule::Unit::Days,
         .span = Rule::Span::Quarter},
        {.name = RulePresets::tr("39 days a quarter, quarters from May"),
         .amount = 3900,
         .unit = Rule::Unit::Days,
         .span = Rule::Span::Quarter,
         .firstMonth = 5},
        {.name = RulePresets::tr("75 % of the workdays of a quarter"),
         .amount = 7500,
         .unit = Rule::Unit::PercentOfWorkdays,
         .span = Rule::Span::Quarter},
    };
}

QList<RulePreset> outOfOfficeRules()
{
    const Rule halfOfTwoWeeks{.name = RulePresets::tr("At most half of two weeks out of office"),
                              .bound = Rule::Bound::AtMost,
                              .amount = 5000,
                              .unit = Rule::Unit::PercentOfWorkdays,
                              .subject = Rule::Subject::OutOfOffice,
                              .span = Rule::Span::TwoWeeks};
    const Rule abroad{.name = RulePresets::tr("At most 34 days abroad a year"),
                      .bound = Rule::Bound::AtMost,
                      .amount = 3400,
                      .unit = Rule::Unit::Days,
                      .subject = Rule::Subject::OutOfOffice,
                      .span = Rule::Span::Year};
    return {{halfOfTwoWeeks}, {abroad, RulePresets::tr("Abroad", "kind of absence")}};
}

} // namespace

QList<RulePreset> rulePresets()
{
    QList<RulePreset> presets;
    for (const Rule& rule : officeRules())
        presets.append({rule});
    return presets + outOfOfficeRules();
}
