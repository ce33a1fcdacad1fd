// SPDX-License-Identifier: GPL-3.0-or-later
#include "PlanTexts.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace {

struct PlanTexts {
    Q_DECLARE_TR_FUNCTIONS(PlanTexts)
};

MarkedText withNumber(const QString& ofOne, const QString& ofSeveral, qint64 number)
{
    return number == 1 ? markedText(ofOne, {}) : markedText(ofSeveral, {QString::number(number)});
}

MarkedText tooManyText(qint64 days)
{
    return withNumber(PlanTexts::tr("**1** more day is planned than allowed"),
                      PlanTexts::tr("**%1** more days are planned than allowed"), days);
}

MarkedText limitText(const RuleProgress& progress)
{
    const qint64 allowed = progress.remaining() - progress.planned;
    if (allowed < 0)
        return tooManyText(-allowed);
    if (progress.planned == 0)
        return allowed == 0 ? markedText(PlanTexts::tr("No more days are allowed"), {})
                            : withNumber(PlanTexts::tr("**1** more day is allowed"),
                                         PlanTexts::tr("**%1** more days are allowed"), allowed);
    if (allowed == 0)
        return markedText(PlanTexts::tr("No more days are allowed besides the planned ones"), {});
    return withNumber(PlanTexts::tr("**1** more day is allowed besides the planned ones"),
                      PlanTexts::tr("**%1** more days are allowed besides the planned ones"), allowed);
}

// Of a rule about days out of office for any reason.
MarkedText leaveText(const RuleProgress& progress)
{
    if (progress.remaining() >= progress.workdaysLeft)
        return {};
    if (progress.remaining() == 0)
        return markedText(PlanTexts::tr("None of the workdays left may be out of office"), {});
    return markedText(PlanTexts::tr("**%1** of the **%2** workdays left may be out of office"),
                      {QString::number(progress.remaining()), QString::number(progress.workdaysLeft)});
}

MarkedText shortText(const RuleProgress& progress)
{
    if (progress.workdaysLeft == 0)
        return markedText(PlanTexts::tr("No workday is left to plan"), {});
    if (progress.workdaysLeft == 1)
        return markedText(PlanTexts::tr("Even with the last workday it is **%1** short"),
                          {QString::number(progress.missedBy)});
    return markedText(PlanTexts::tr("Even with all **%1** workdays left it is **%2** short"),
                      {QString::number(progress.workdaysLeft), QString::number(progress.missedBy)});
}

MarkedText paceText(const PlanPace& pace)
{
    const QStringList numbers{QString::number(pace.daysToPlan), QString::number(pace.freeDays),
                              QString::number(std::lround(pace.perWeek))};
    if (pace.perWeek == 0.0)
        return pace.freeDays == 1 ? markedText(PlanTexts::tr("The **1** free workday left is needed"), {})
                                  : markedText(PlanTexts::tr("**%1** of the **%2** free workdays left"), numbers);
    //: Of a few days in many weeks.
    const QString seldom = PlanTexts::tr("**%1** of the **%2** free workdays left: less than one a week");
    //: "4 of the 9 free workdays left: about 2 a week"
    const QString often = PlanTexts::tr("**%1** of the **%2** free workdays left: about **%3** a week");
    return markedText(std::lround(pace.perWeek) == 0 ? seldom : often, numbers);
}

} // namespace

MarkedText planText(const AttendanceRule& rule, const RuleProgress& progress, const PlanPace& pace, QDate today)
{
    using Verdict = RuleProgress::Verdict;
    const bool isLimit = rule.bound == AttendanceRule::Bound::AtMost;
    const bool isAboutLeave = rule.subject == AttendanceRule::Subject::OutOfOffice;
    if (progress.span.last < today || (isAboutLeave && (!isLimit || rule.absenceKind != AbsenceKind::none)))
        return {};
    if (isLimit && progress.verdict == Verdict::Broken)
        return {};
    if (isLimit)
        return isAboutLeave ? leaveText(progress) : limitText(progress);
    if (progress.verdict == Verdict::Broken)
        return shortText(progress);
    if (pace.daysToPlan > 0)
        return paceText(pace);
    if (pace.daysToPlan == 0 || progress.planned == 0)
        return progress.planned > 0 ? markedText(PlanTexts::tr("The planned days are enough"), {})
                                    : markedText(PlanTexts::tr("No more days are needed"), {});
    return withNumber(PlanTexts::tr("**1** more day is planned than needed"),
                      PlanTexts::tr("**%1** more days are planned than needed"),
                      std::min(-pace.daysToPlan, progress.planned));
}
