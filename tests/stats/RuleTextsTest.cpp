// SPDX-License-Identifier: GPL-3.0-or-later
#include "RuleTexts.h"
#include "RulePresets.h"
#include "Testing.h"

namespace {

using Rule = AttendanceRule;
using Verdict = RuleProgress::Verdict;

} // namespace

TEST(RuleTexts, sayTheOutcomeOnceASpanIsOver)
{
    const Rule atLeast, atMost{.bound = Rule::Bound::AtMost};
    const DaySpan november{{2026, 11, 1}, {2026, 11, 30}};
    const QDate later(2026, 12, 1);
    EXPECT_EQ(ruleOutlookText(atLeast, {november, 8, 6, 0, 0, 2, Verdict::Broken}, later), u"Missed by 2"_s);
    EXPECT_EQ(ruleOutlookText(atMost, {november, 8, 8, 0, 0, 0, Verdict::Kept}, later), u"Kept"_s);
    EXPECT_EQ(ruleCountText(atLeast, {november, 1, 0}), u"0 of 1 day"_s);
    EXPECT_EQ(ruleCountText(atMost, {november, 1, 0}), u"0 of at most 1 day"_s);
}

TEST(RuleTexts, countTheShorterSpansOfAPeriodThatIsOver)
{
    // Of the weeks that end in November 2026 the second and the fourth have three days.
    const Rule week{.span = Rule::Span::Week};
    const DaySpan november{{2026, 11, 1}, {2026, 11, 30}};
    const DaySpan span = daysOfSpansKept(week, november, Qt::Monday);
    EXPECT_EQ(span.first, QDate(2026, 10, 26));
    const QList<int> inOffice{2, 3, 4, 16, 17, 18, 30};
    const auto stateOn = [&](QDate date) {
        return date.month() == 11 && inOffice.contains(date.day()) ? DayState::IN_OFFICE : DayState::UNKNOWN;
    };
    const CountedDays days(span, stateOn, {}, false);
    const auto text = [&](Rule rule, QDate today) {
        return spansKeptText(rule, spansKept(rule, days, november, today, Qt::Monday));
    };
    EXPECT_EQ(text(week, {2026, 12, 1}), u"Reached in 2 of 5 weeks"_s);
    EXPECT_EQ(text({.bound = Rule::Bound::AtMost, .span = Rule::Span::Week}, {2026, 11, 20}),
              u"Kept in 3 of 3 weeks"_s);
    EXPECT_EQ(text({.span = Rule::Span::Week, .from = QDate(2026, 11, 12)}, {2026, 12, 1}),
              u"Reached in 1 of 3 weeks"_s);
    EXPECT_EQ(text({.span = Rule::Span::Quarter}, {2027, 1, 1}), QString());
}

TEST(RuleTexts, sayARuleInWords)
{
    const auto presets = rulePresets();
    const QStringList expected{
        u"At least 3 days a week on average, each week"_s,
        u"At least 3 days a week on average, over the last 8 weeks"_s,
        u"At least 4 days a week on average, each month"_s,
        u"At least 2 days every two weeks"_s,
        u"At least 50 % of the workdays of every two weeks"_s,
        u"At least 12 days each month"_s,
        u"At least 60 % of the workdays of each month"_s,
        u"At least 2 days each month on Fridays"_s,
        u"At least 10 days each quarter"_s,
        u"At least 39 days each quarter (counted from May)"_s,
        u"At least 75 % of the workdays of each quarter"_s,
        u"At most 50 % of the workdays of every two weeks out of office"_s,
        u"At most 34 days out of office (Abroad) each year"_s,
    };
    QStringList summaries;
    for (RulePreset preset : presets) {
        preset.rule.absenceKind = preset.absenceKindName.isEmpty() ? AbsenceKind::none : AbsenceKind::firstOwn;
        summaries.append(ruleSummary(preset.rule, {{AbsenceKind::firstOwn, preset.absenceKindName}}));
    }
    EXPECT_EQ(summaries, expected);
    const Rule detailed{.amount = 250,
                        .weekdays = Weekdays::mondayToFriday(),
                        .span = Rule::Span::Year,
                        .firstMonth = 4,
                        .from = QDate(2026, 3, 1),
                        .until = QDate(2027, 1, 31)};
    EXPECT_EQ(ruleSummary(detailed, {}),
              u"At least 2.5 days a week on average, each year (counted from April) on Mondays to "
              "Fridays, from 1 March 2026 to 31 January 2027"_s);
}
