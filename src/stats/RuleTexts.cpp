// SPDX-License-Identifier: GPL-3.0-or-later
#include "RuleTexts.h"

#include <QCoreApplication>
#include <QLocale>

namespace {

struct RuleTexts {
    Q_DECLARE_TR_FUNCTIONS(RuleTexts)
};

bool isAtMost(const AttendanceRule& rule)
{
    return rule.bound == AttendanceRule::Bound::AtMost;
}

QString endOf(const RuleProgress& progress)
{
    return QLocale().toString(progress.span.last, RuleTexts::tr("d MMMM"));
}

QString allowedText(const RuleProgress& progress, bool isOver)
{
    if (progress.missedBy > 0)
        return RuleTexts::tr("%1 too many").arg(progress.missedBy);
    if (isOver)
        return RuleTexts::tr("Kept");
    return progress.remaining() == 0
               ? RuleTexts::tr("None left until %1").arg(endOf(progress))
               : RuleTexts::tr("%1 more allowed until %2").arg(QString::number(progress.remaining()), endOf(progress));
}

QString neededText(const RuleProgress& progress)
{
    const QStringList numbers{QString::number(progress.remaining()), QString::number(progress.workdaysLeft)};
    return progress.workdaysLeft == 1
               ? RuleTexts::tr("%1 more by %2, 1 workday left").arg(numbers[0], endOf(progress))
               : RuleTexts::tr("%1 more by %2, %3 workdays left").arg(numbers[0], endOf(progress), numbers[1]);
}

QString noWorkdaysText(Weekdays weekdays)
{
    for (int day = Qt::Monday; day <= Qt::Sunday; ++day) {
        if (weekdays == Weekdays().with(day, true))
            //: "no Friday is a workday"
            return RuleTexts::tr("Cannot be reached: no %1 is a workday").arg(QLocale().standaloneDayName(day));
    }
    return RuleTexts::tr("Cannot be reached: none of the days is a workday");
}

// Says so if there are too few workdays, among which leave may not be counted.
QString unreachableText(const AttendanceRule& rule, const RuleProgress& progress)
{
    const QStringList numbers{QString::number(progress.workdays), QString::number(progress.missedBy)};
    if (progress.workdays == 0 && progress.counted == 0)
        return noWorkdaysText(rule.weekdays);
    if (progress.workdays == 0 || progress.workdays >= progress.wanted)
        return RuleTexts::tr("Cannot be reached any more (%1 short)").arg(numbers[1]);
    return progress.workdays == 1
               ? RuleTexts::tr("Cannot be reached: only 1 workday (%1 short)").arg(numbers[1])
               : RuleTexts::tr("Cannot be reached: only %1 workdays (%2 short)").arg(numbers[0], numbers[1]);
}

QString spansText(AttendanceRule::Span span)
{
    switch (span) {
    case AttendanceRule::Span::Week:
    case AttendanceRule::Span::LastWeeks:
        break;
    case AttendanceRule::Span::TwoWeeks:
        return RuleTexts::tr("%1 of %2 pairs of weeks");
    case AttendanceRule::Span::Month:
        return RuleTexts::tr("%1 of %2 months");
    case AttendanceRule::Span::Quarter:
        return RuleTexts::tr("%1 of %2 quarters");
    case AttendanceRule::Span::Year:
        return RuleTexts::tr("%1 of %2 years");
    }
    return RuleTexts::tr("%1 of %2 weeks");
}

} // namespace

QString ruleCountText(const AttendanceRule& rule, const RuleProgress& progress)
{
    const QString counted = QString::number(progress.counted);
    const int wanted = static_cast<int>(progress.wanted);
    if (wanted == 1)
        return (isAtMost(rule) ? RuleTexts::tr("%1 of at most 1 day") : RuleTexts::tr("%1 of 1 day")).arg(counted);
    return (isAtMost(rule) ? RuleTexts::tr("%1 of at most %n days", nullptr, wanted)
                           : RuleTexts::tr("%1 of %n days", nullptr, wanted))
        .arg(counted);
}

QString ruleOutlookText(const AttendanceRule& rule, const RuleProgress& progress, QDate today)
{
    const bool isOver = progress.span.last < today;
    if (progress.hasNoWorkdays())
        return RuleTexts::tr("No workdays in this period");
    if (isAtMost(rule))
        return allowedText(progress, isOver);
    switch (progress.verdict) {
    case RuleProgress::Verdict::Kept:
        return RuleTexts::tr("Reached");
    case RuleProgress::Verdict::KeptWithPlanned:
        return RuleTexts::tr("Reached with the planned days");
    case RuleProgress::Verdict::Open:
        break;
    case RuleProgress::Verdict::Broken:
        return isOver ? RuleTexts::tr("Missed by %1").arg(progress.missedBy) : unreachableText(rule, progress);
    }
    return neededText(progress);
}

QString spansKeptText(const AttendanceRule& rule, const SpansKept& spans)
{
    if (spans.spans == 0)
        return {};
    const QString text = spansText(rule.span).arg(QString::number(spans.kept), QString::number(spans.spans));
    return (isAtMost(rule) ? RuleTexts::tr("Kept in %1") : RuleTexts::tr("Reached in %1")).arg(text);
}
