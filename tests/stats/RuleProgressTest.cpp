// SPDX-License-Identifier: GPL-3.0-or-later
#include "RulePresets.h"
#include "RuleTexts.h"
#include "Testing.h"

#include <iostream>
#include <random>

namespace {

using Rule = AttendanceRule;

constexpr int abroad = AbsenceKind::firstOwn;

QDate on(int month, int day)
{
    return {2026, month, day};
}

struct Mark {
    DayState state;
    int kind = AbsenceKind::none;
};

const QHash<QString, Mark> marks{{u"office"_s, {DayState::IN_OFFICE}},
                                 {u"planned"_s, {DayState::WILL_BE_IN_OFFICE}},
                                 {u"leave"_s, {DayState::VACATION_DAY}},
                                 {u"out"_s, {DayState::OUT_OF_OFFICE}},
                                 {u"sick"_s, {DayState::OUT_OF_OFFICE, AbsenceKind::sick}},
                                 {u"client"_s, {DayState::OUT_OF_OFFICE, AbsenceKind::clientVisit}},
                                 {u"abroad"_s, {DayState::OUT_OF_OFFICE, abroad}}};

/// The days around 2026 by a text such as "off 1225, office 1201 1204, leave 1207 1211". Leave and sickness are left
/// out of the workdays, and client visits count as in the office.
CountedDays calendar(const QString& text)
{
    Counting::Choices choices{.leavesOutVacation = !text.startsWith(u"leave counts"),
                              .kinds = {{AbsenceKind::sick, {}, Treatment::LeftOut},
                                        {AbsenceKind::clientVisit, {}, Treatment::InOffice},
                                        {abroad, u"Abroad"_s, Treatment::InOffice}}};
    QHash<QDate, DayState> states;
    for (const QString& part : text.split(u", "_s)) {
        const QStringList words = part.split(u' ');
        const QDate first = QDate::fromString(words.value(1), u"MMdd"_s).addYears(126);
        const QDate last = QDate::fromString(words.last(), u"MMdd"_s).addYears(126);
        if (words[0] == u"part-time")
            choices.workWeeks = {{first, Weekdays(0b111)}};
        for (QDate date = first; date.isValid() && date <= last; date = date.addDays(1)) {
            if (words[0] == u"off")
                choices.daysOff.append({date});
            if (!marks.contains(words[0]) || (first != last && !Counting(choices).isWorkday(date)))
                continue;
            states[date] = marks[words[0]].state;
            choices.absences[date] = marks[words[0]].kind;
        }
    }
    const auto stateOn = [&](QDate date) { return states.value(date); };
    return {{{2025, 11, 1}, {2027, 2, 28}}, stateOn, Counting(choices), false};
}

Rule preset(const QString& name)
{
    for (RulePreset preset : rulePresets()) {
        preset.rule.absenceKind = preset.absenceKindName.isEmpty() ? AbsenceKind::none : abroad;
        if (preset.rule.name == name)
            return preset.rule;
    }
    throw std::out_of_range(name.toStdString());
}

template <class Field, class Value> Rule with(Rule rule, Field field, Value value)
{
    rule.*field = value;
    return rule;
}

} // namespace

// In 2026 the months from January have 22, 20, 22, 22, 21, 22, 23, 21, 22, 22, 21 and 23 days from Monday to Friday.
TEST(RuleProgress, isWhatTheEmployerCounts)
{
    const Rule twelve = preset(u"12 days a month"_s), weekly = preset(u"3 days every week"_s);
    const Rule sixty = preset(u"60 % of the workdays of a month"_s);
    const Rule seventyFive = preset(u"75 % of the workdays of a quarter"_s);
    const Rule twoWeeks = with(preset(u"2 days in two weeks"_s), &Rule::anchor, on(11, 9));
    const Rule half = with(preset(u"Half of two weeks"_s), &Rule::anchor, on(11, 9));
    const Rule halfOut = with(preset(u"At most half of two weeks out of office"_s), &Rule::anchor, on(11, 9));
    const Rule abroadRule = preset(u"At most 34 days abroad a year"_s);
    const QString december = u"office 1201 1204, leave 1207 1211"_s;
    const QString november = u"office 1102 1106, leave 1109 1120"_s;
    const QString autumn = u"off 1012, off 1111, off 1126, off 1225, office 1001 1106"_s;
    const QString travel = u"sick 1116 1118, client 1119, leave 1102 1106, office 1109 1113"_s;
    const QString fortnight = u"office 1114, planned 1120"_s;
    const QString summer = u"office 0427 0612, leave 0720 0731"_s;
    const QString trips = u"abroad 0301 0331, abroad 0803 0814, out 0901 0904"_s;
    const QString fridays = u"off 1111, office 1102 1119"_s;

    const struct {
        const char* why;
        Rule rule;
        QString days;
        QDate today;
        QString expected;
    } rows[]{
        {"23 days less 2 bank holidays and 5 of leave are 16, of which 60 % are 9.6", sixty,
         u"off 1225, off 1228, "_s + december, on(12, 14), u"4 of 10 days: 6 more by 31 December, 12 workdays left"_s},
        {"60 % of 23 are 13.8", sixty, u"leave counts, "_s + december, on(12, 14),
         u"4 of 14 days: 10 more by 31 December, 14 workdays left"_s},
        {"64 days less 10 of leave are 54, at 3 of 5 32.4", with(Rule(), &Rule::span, Rule::Span::Quarter),
         u"leave 0202 0213"_s, on(1, 1), u"0 of 33 days: 33 more by 31 March, 54 workdays left"_s},
        {"39 whatever the leave; 21 in May, 10 in June; 12 left in June, 13 in July",
         preset(u"39 days a quarter, quarters from May"_s), summer, on(6, 15),
         u"31 of 39 days: 8 more by 31 July, 25 workdays left"_s},
        {"7 in October, 3 in November", preset(u"10 days a quarter"_s), u"office 1001 1009, planned 1123 1125"_s,
         on(11, 20), u"7 of 10 days: Reached with the planned days"_s},
        {"12 whatever the leave, and 6 left", twelve, november, on(11, 23),
         u"5 of 12 days: Cannot be reached: only 11 workdays (1 short)"_s},
        {"12, and 4 left", twelve, u"office 1102 1106"_s, on(11, 25),
         u"5 of 12 days: Cannot be reached any more (3 short)"_s},
        {"Fridays that are not worked", preset(u"Two Fridays a month"_s), u"part-time 1101"_s, on(11, 2),
         u"0 of 2 days: Cannot be reached: no Friday is a workday"_s},
        {"the same of 10 days", with(twelve, &Rule::amount, 1000), november, on(11, 23),
         u"5 of 10 days: 5 more by 30 November, 6 workdays left"_s},
        {"66 days less 4 are 62, 46.5; 21 in October, 5 in November; 14 and 22 left", seventyFive, autumn, on(11, 9),
         u"26 of 47 days: 21 more by 31 December, 36 workdays left"_s},
        {"85 % of 62 are 52.7", with(seventyFive, &Rule::amount, 8500), autumn, on(11, 9),
         u"26 of 53 days: 27 more by 31 December, 36 workdays left"_s},
        {"60 % of 62 are 37.2", with(seventyFive, &Rule::amount, 6000), autumn, on(11, 9),
         u"26 of 38 days: 12 more by 31 December, 36 workdays left"_s},
        {"2 workdays beside 3 of sickness, at 3 of 5 1.2; a client was visited", weekly, travel, on(11, 20),
         u"1 of 2 days: 1 more by 22 November, 1 workday left"_s},
        {"a week of leave has no workdays", weekly, travel, on(11, 6), u"0 of 0 days: No workdays in this period"_s},
        {"21 days less 5 of leave and 3 of sickness are 13, 7.8; 5 and the client", Rule(), travel, on(11, 20),
         u"6 of 8 days: 2 more by 30 November, 7 workdays left"_s},
        {"today, and a Saturday that is planned though no workday", weekly, u"office 1116, planned 1121"_s, on(11, 20),
         u"1 of 3 days: 2 more by 22 November, 1 workday left"_s},
        {"a Saturday in the weeks from 9 November", twoWeeks, fortnight, on(11, 20),
         u"1 of 2 days: Reached with the planned days"_s},
        {"in those from 16 November", with(twoWeeks, &Rule::anchor, on(1, 12)), fortnight, on(11, 20),
         u"0 of 2 days: 2 more by 29 November, 6 workdays left"_s},
        {"10 days less a day off are 9, 4.5", half, u"off 1111, office 1109 1113"_s, on(11, 20),
         u"4 of 5 days: 1 more by 22 November, 1 workday left"_s},
        {"9 days less 2 of sickness are 7, 3.5", halfOut, u"off 1111, sick 1109 1110, out 1116 1119"_s, on(11, 20),
         u"4 of at most 3 days: 1 too many"_s},
        {"9 days, 4.5", halfOut, u"off 1111, out 1116 1119"_s, on(11, 20),
         u"4 of at most 4 days: None left until 22 November"_s},
        {"22 in March and 10 in August, though they count as in the office", abroadRule, trips, on(11, 20),
         u"32 of at most 34 days: 2 more allowed until 31 December"_s},
        {"34 a year are 28.3 for the 217 of 261 days until October", with(abroadRule, &Rule::until, on(10, 31)), trips,
         on(11, 20), u"32 of at most 28 days: 4 too many"_s},
        {"21 days less one are 20, at 4 of 5 16; 5, 4 and 4", preset(u"4 days a week on average over a month"_s),
         fridays, on(11, 20), u"13 of 16 days: 3 more by 30 November, 7 workdays left"_s},
        {"and two Fridays of these", preset(u"Two Fridays a month"_s), fridays, on(11, 20), u"2 of 2 days: Reached"_s},
        {"10 days, and 7 of three days a week, are 17, 10.2", sixty, u"part-time 1116, office 1102 1105"_s, on(11, 16),
         u"4 of 11 days: 7 more by 30 November, 7 workdays left"_s},
        {"11 of the 21 days of a month, 6.3", with(twelve, &Rule::from, on(11, 16)), u"off 1126, office 1102 1105"_s,
         on(11, 16), u"0 of 7 days: 7 more by 30 November, 10 workdays left"_s},
        {"40 days from 28 September to 22 November, at 3 of 5 24", preset(u"3 days a week over the last 8 weeks"_s),
         u"office 0901 1030"_s, on(11, 20), u"25 of 24 days: Reached"_s},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.why);
        const auto progress = ruleProgress(row.rule, calendar(row.days), row.today, row.today, Qt::Monday);
        const QString text =
            progress ? ruleCountText(row.rule, *progress) + u": "_s + ruleOutlookText(row.rule, *progress, row.today)
                     : QString();
        EXPECT_EQ(text, row.expected);
    }
    const Rule next = with(Rule(), &Rule::from, on(12, 1));
    EXPECT_FALSE(ruleProgress(next, calendar({}), on(11, 30), on(11, 30), Qt::Monday));
    EXPECT_FALSE(ruleProgress(next, CountedDays({}, {}, {}, false), {}, on(11, 30), Qt::Monday));
}

TEST(RuleProgress, spansDivideTheCalendar)
{
    const QDate farAway[]{{1, 1, 1}, {9998, 6, 1}, {2019, 12, 1}};
    for (const Rule& rule : {Rule{.span = Rule::Span::Week}, Rule{.span = Rule::Span::TwoWeeks},
                             Rule{.span = Rule::Span::TwoWeeks, .anchor = QDate(1, 1, 3)},
                             Rule{.span = Rule::Span::TwoWeeks, .anchor = QDate(9999, 12, 31)}, Rule(),
                             Rule{.span = Rule::Span::Quarter, .firstMonth = 5}, Rule{.span = Rule::Span::Quarter},
                             Rule{.span = Rule::Span::Year, .firstMonth = 12}}) {
        for (const QDate begin : farAway) {
            for (const auto firstDay : {Qt::Monday, Qt::Saturday, Qt::Sunday}) {
                DaySpan span = spanOf(rule, begin, firstDay);
                for (QDate date = begin; date < begin.addDays(800); date = date.addDays(1)) {
                    if (date > span.last)
                        span = {span.last.addDays(1), spanOf(rule, date, firstDay).last};
                    ASSERT_EQ(spanOf(rule, date, firstDay), span) << date.toString().toStdString();
                }
            }
        }
    }
    EXPECT_EQ(spanOf({.span = Rule::Span::Week}, {2027, 1, 1}, Qt::Monday), (DaySpan{on(12, 28), {2027, 1, 3}}));
    EXPECT_EQ(spanOf({.span = Rule::Span::Year, .firstMonth = 3}, on(2, 1), Qt::Monday),
              (DaySpan{{2025, 3, 1}, on(2, 28)}));
    EXPECT_EQ(spanOf({.span = Rule::Span::TwoWeeks, .anchor = QDate(2028, 1, 12)}, on(11, 20), Qt::Sunday),
              (DaySpan{on(11, 15), on(11, 28)}));
    EXPECT_EQ(spanOf({.span = Rule::Span::LastWeeks, .weeks = 53}, on(11, 20), Qt::Sunday),
              (DaySpan{{2025, 11, 16}, on(11, 21)}));
}

// Different in every run. A run is repeated by its seed in the environment.
TEST(RuleProgress, needsTheLeastThatReachesItAndNoMoreAfterADayInTheOffice)
{
    const auto given = static_cast<unsigned>(qEnvironmentVariableIntValue("PELLORY_SEED"));
    const unsigned seed = given != 0 ? given : std::random_device()();
    std::cout << "PELLORY_SEED=" << seed << std::endl;
    std::mt19937 random(seed);
    const auto pick = [&](int first, int last) { return std::uniform_int_distribution(first, last)(random); };
    for (int round = 0; round < 500; ++round) {
        SCOPED_TRACE(round);
        Rule rule{.bound = Rule::Bound(pick(1, 2)), .unit = Rule::Unit(pick(1, 3)), .span = Rule::Span(pick(1, 3))};
        const int whole = std::array{500, 10000, 100}.at(std::size_t(rule.unit) - 1);
        const QDate today = on(11, pick(2, 29));
        rule.amount = pick(1, whole == 100 ? 900 : whole);
        rule.weekdays = Weekdays(pick(0, 127) | 0b100);
        rule.from = on(11, pick(1, today.day()));
        Counting::Choices choices{.leavesOutVacation = pick(0, 1) == 1, .daysOff = {{on(11, pick(1, 30))}}};
        QHash<QDate, DayState> states;
        for (QDate date = on(10, 15); date < on(12, 20); date = date.addDays(1))
            states[date] = allDayStates.at(static_cast<std::size_t>(pick(0, 4)));
        const auto progressNow = [&] {
            const auto stateOn = [&](QDate date) { return states.value(date); };
            const CountedDays days({on(10, 15), on(12, 20)}, stateOn, Counting(choices), false);
            return ruleProgress(rule, days, today, today, Qt::Sunday).value_or(RuleProgress());
        };

        const RuleProgress progress = progressNow();
        const DaySpan span = spanOf(rule, today, Qt::Sunday);
        qint64 base = 0, ofAll = 0;
        for (QDate date = span.first; date <= span.last; date = date.addDays(1)) {
            const bool isIn = rule.weekdays.contains(date.dayOfWeek()) && date >= *rule.from;
            const bool isOff = (choices.leavesOutVacation && states[date] == DayState::VACATION_DAY) ||
                               date == choices.daysOff.first().date || date.dayOfWeek() > 5;
            base += rule.unit == Rule::Unit::Days ? isIn && date.dayOfWeek() <= 5 : isIn && !isOff;
            ofAll += rule.weekdays.contains(date.dayOfWeek()) && date.dayOfWeek() <= 5;
        }
        const qint64 scale = rule.unit == Rule::Unit::Days ? whole * ofAll : whole;
        qint64 expected = 0;
        if (rule.bound == Rule::Bound::AtLeast) {
            while (expected * scale < rule.amount * base)
                ++expected;
        } else {
            while ((expected + 1) * scale <= rule.amount * base)
                ++expected;
        }
        ASSERT_EQ(progress.wanted, expected);

        states[progress.span.last] = DayState::UNKNOWN;
        const auto choicesBefore = choices;
        choices.daysOff.append({progress.span.last});
        const RuleProgress withDayOff = progressNow();
        choices = choicesBefore;
        rule.until = progress.span.last.addDays(-1);
        const RuleProgress shorter = progressNow();
        if (rule.unit != Rule::Unit::Days && shorter.span.first.isValid()) {
            ASSERT_THAT((std::tuple(withDayOff.wanted, withDayOff.counted, withDayOff.workdaysLeft)),
                        testing::FieldsAre(shorter.wanted, shorter.counted, shorter.workdaysLeft));
            ASSERT_EQ(withDayOff.verdict, shorter.verdict);
        }

        rule.until.reset();
        const qint64 before = progressNow().remaining();
        states[span.first.addDays(pick(0, int(span.first.daysTo(span.last))))] = DayState::IN_OFFICE;
        ASSERT_LE(progressNow().remaining(), before);
    }
}
