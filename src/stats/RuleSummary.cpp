// SPDX-License-Identifier: GPL-3.0-or-later
#include "RuleTexts.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <array>

namespace {

struct RuleSummary {
    Q_DECLARE_TR_FUNCTIONS(RuleSummary)
};

double amountOf(const AttendanceRule& rule)
{
    return rule.amount / 100.0;
}

// Quarters that begin in April are those of the calendar.
bool isCalendarSpan(const AttendanceRule& rule)
{
    return rule.firstMonth % (rule.span == AttendanceRule::Span::Quarter ? 3 : 12) == 1;
}

QString countedFrom(const QString& span, const AttendanceRule& rule)
{
    //: After "each quarter", "of each year" and so on; %2 is a month.
    return isCalendarSpan(rule)
               ? span
               : RuleSummary::tr("%1 (counted from %2)").arg(span, QLocale().standaloneMonthName(rule.firstMonth));
}

QString eachSpan(const AttendanceRule& rule)
{
    switch (rule.span) {
    case AttendanceRule::Span::Week:
        break;
    case AttendanceRule::Span::TwoWeeks:
        return RuleSummary::tr("every two weeks");
    case AttendanceRule::Span::Month:
        return RuleSummary::tr("each month");
    case AttendanceRule::Span::Quarter:
        return countedFrom(RuleSummary::tr("each quarter"), rule);
    case AttendanceRule::Span::Year:
        return countedFrom(RuleSummary::tr("each year"), rule);
    case AttendanceRule::Span::LastWeeks:
        return rule.weeks == 1 ? RuleSummary::tr("over the last week")
                               : RuleSummary::tr("over the last %n weeks", nullptr, rule.weeks);
    }
    return RuleSummary::tr("each week");
}

// Follows "60 % of the workdays".
QString ofEachSpan(const AttendanceRule& rule)
{
    switch (rule.span) {
    case AttendanceRule::Span::Week:
        break;
    case AttendanceRule::Span::TwoWeeks:
        return RuleSummary::tr("of every two weeks");
    case AttendanceRule::Span::Month:
        return RuleSummary::tr("of each month");
    case AttendanceRule::Span::Quarter:
        return countedFrom(RuleSummary::tr("of each quarter"), rule);
    case AttendanceRule::Span::Year:
        return countedFrom(RuleSummary::tr("of each year"), rule);
    case AttendanceRule::Span::LastWeeks:
        return rule.weeks == 1 ? RuleSummary::tr("of the last week")
                               : RuleSummary::tr("of the last %n weeks", nullptr, rule.weeks);
    }
    return RuleSummary::tr("of each week");
}

QString withSubject(const QString& text, const AttendanceRule& rule, const QList<AbsenceKind>& kinds)
{
    if (rule.subject == AttendanceRule::Subject::InOffice)
        return text;
    if (rule.absenceKind == AbsenceKind::none)
        return RuleSummary::tr("%1 out of office").arg(text);
    const auto kind = std::ranges::find(kinds, rule.absenceKind, &AbsenceKind::id);
    const QString name = kind == kinds.end() ? RuleSummary::tr("a kind that was removed") : description(*kind);
    //: %2 is a kind of absence.
    return RuleSummary::tr("%1 out of office (%2)").arg(text, name);
}

QString daysText(const AttendanceRule& rule)
{
    //: %L1 in place of %1 writes the number as the person's locale has it.
    return rule.amount == 100 ? RuleSummary::tr("1 day") : RuleSummary::tr("%1 days").arg(amountOf(rule));
}

QString amountText(const AttendanceRule& rule, const QList<AbsenceKind>& kinds)
{
    switch (rule.unit) {
    case AttendanceRule::Unit::DaysPerWeek:
        break;
    case AttendanceRule::Unit::PercentOfWorkdays: {
        //: %L1 in place of %1 writes the number as the person's locale has it. %2 is such as "of each month".
        const QString pattern = RuleSummary::tr("%1 % of the workdays %2");
        return withSubject(pattern.arg(amountOf(rule)).arg(ofEachSpan(rule)), rule, kinds);
    }
    case AttendanceRule::Unit::Days:
        //: "3 days each month"
        return RuleSummary::tr("%1 %2").arg(withSubject(daysText(rule), rule, kinds), eachSpan(rule));
    }
    //: "3 days a week on average, each month"
    return RuleSummary::tr("%1 a week on average, %2").arg(withSubject(daysText(rule), rule, kinds), eachSpan(rule));
}

QString weekdaysText(Weekdays weekdays)
{
    if (weekdays == Weekdays::mondayToFriday())
        return RuleSummary::tr("Mondays to Fridays");
    const std::array names{RuleSummary::tr("Mondays"),   RuleSummary::tr("Tuesdays"), RuleSummary::tr("Wednesdays"),
                           RuleSummary::tr("Thursdays"), RuleSummary::tr("Fridays"),  RuleSummary::tr("Saturdays"),
                           RuleSummary::tr("Sundays")};
    QStringList chosen;
    for (int day = Qt::Monday; day <= Qt::Sunday; ++day) {
        if (weekdays.contains(day))
            chosen.append(names.at(static_cast<std::size_t>(day - Qt::Monday)));
    }
    return QLocale().createSeparatedList(chosen);
}

QString withValidity(const QString& text, const AttendanceRule& rule)
{
    const auto written = [](QDate date) { return QLocale().toString(date, RuleSummary::tr("d MMMM yyyy")); };
    if (rule.from && rule.until)
        return RuleSummary::tr("%1, from %2 to %3").arg(text, written(*rule.from), written(*rule.until));
    if (rule.from)
        return RuleSummary::tr("%1, from %2").arg(text, written(*rule.from));
    return rule.until ? RuleSummary::tr("%1, until %2").arg(text, written(*rule.until)) : text;
}

} // namespace

QString ruleSummary(const AttendanceRule& rule, const QList<AbsenceKind>& kinds)
{
    const QString bound =
        rule.bound == AttendanceRule::Bound::AtMost ? RuleSummary::tr("At most %1") : RuleSummary::tr("At least %1");
    QString text = bound.arg(amountText(rule, kinds));
    if (rule.weekdays != Weekdays::all()) {
        //: "3 days each month on Fridays"
        text = RuleSummary::tr("%1 on %2").arg(text, weekdaysText(rule.weekdays));
    }
    return withValidity(text, rule);
}
