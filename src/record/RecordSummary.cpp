// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecordSummary.h"

#include "PaperTable.h"
#include "RecordFigures.h"
#include "RecordTexts.h"
#include "RuleTexts.h"
#include "StatisticsTexts.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct RecordSummary {
    Q_DECLARE_TR_FUNCTIONS(RecordSummary)
};

// Of a rule with more spans only the number is said that were kept.
constexpr qsizetype mostSpans = 60;

QString goalName(const ValuedGoal& goal)
{
    return goal.goal->desc.value().isEmpty() ? goalValueText(goal.value) : goal.goal->desc.value();
}

// The goal that the tracker names.
QString nextGoalText(const AttendanceStatistics& statistics)
{
    if (!statistics.targetGoal)
        return {};
    const QString name = goalName(*statistics.targetGoal);
    return statistics.remainingDays <= 0
               ? RecordSummary::tr("%1: reached", "goal").arg(name)
               : RecordSummary::tr("%1: %2 more", "goal, days").arg(name, QString::number(statistics.remainingDays));
}

PaperRow totalRow(const RecordTotal& total, bool isStrong)
{
    const AttendanceStatistics& statistics = total.statistics;
    return {.cells = {record_texts::period(total.span), QString::number(statistics.workdays),
                      QString::number(statistics.inOffice), QString::number(total.outOfOffice),
                      QString::number(total.vacationDays), QString::number(statistics.planned),
                      twoDecimals(shownAverage(statistics)), nextGoalText(statistics)},
            .isStrong = isStrong};
}

void addTotals(RecordPaper& paper, const QList<RecordTotal>& totals)
{
    PaperTable table(paper, {{RecordSummary::tr("Period"), 1.65},
                             {RecordSummary::tr("Workdays"), 1.3, Qt::AlignRight},
                             {RecordSummary::tr("In the office"), 0.9, Qt::AlignRight},
                             {RecordSummary::tr("Out of office"), 0.9, Qt::AlignRight},
                             {RecordSummary::tr("Vacation"), 1.05, Qt::AlignRight},
                             {RecordSummary::tr("Planned"), 1.05, Qt::AlignRight},
                             {RecordSummary::tr("Days a week"), 0.9, Qt::AlignRight},
                             {RecordSummary::tr("Next goal"), 2.5}});
    for (const RecordTotal& total : totals) {
        const bool isMonth = total.span.first.daysTo(total.span.last) < total.span.first.daysInMonth();
        table.add(totalRow(total, !isMonth && totals.size() > 1));
    }
    paper.addHeading(RecordSummary::tr("Figures"), table.leastHeight());
    table.draw();
}

QString goalOutcome(qint64 remaining, bool isOver)
{
    if (remaining <= 0)
        return RecordSummary::tr("Reached");
    return (isOver ? RecordSummary::tr("Missed by %1") : RecordSummary::tr("%1 more")).arg(remaining);
}

void addGoals(RecordPaper& paper, const RecordContents& contents, const AttendanceStatistics& whole)
{
    if (whole.validGoals.isEmpty())
        return;
    PaperTable table(paper, {{RecordSummary::tr("Goal"), 2.2},
                             {RecordSummary::tr("Days a week"), 1.0, Qt::AlignRight},
                             {RecordSummary::tr("Days needed"), 1.0, Qt::AlignRight},
                             {RecordSummary::tr("In the office"), 1.0, Qt::AlignRight},
                             {RecordSummary::tr("Outcome"), 2.0}});
    for (const ValuedGoal& goal : whole.validGoals) {
        const qint64 needed = neededDays(goal.value, whole.workdays);
        table.add({.cells = {goalName(goal), twoDecimals(goal.value), QString::number(needed),
                             QString::number(whole.inOffice),
                             goalOutcome(needed - whole.inOffice, contents.period.last < contents.made.date())}});
    }
    paper.addHeading(RecordSummary::tr("Goals, over the whole period"), table.height());
    table.draw();
}

QString daysOf(DaySpan span)
{
    //: A short date in the format of QLocale::toString(). Put words in single quotes: 'the' d.
    const QString format = RecordSummary::tr("d MMM yyyy");
    const QString first = QLocale().toString(span.first, format);
    return span.first == span.last
               ? first
               : RecordSummary::tr("%1 to %2", "dates").arg(first, QLocale().toString(span.last, format));
}

void addRule(RecordPaper& paper, const RecordedRule& recorded, const RecordContents& contents)
{
    const QString summary = ruleSummary(recorded.rule, contents.kinds);
    const QString kept = spansKeptText(recorded.rule, recorded.kept);
    QStringList below;
    if (summary != recorded.rule.name)
        below += summary;
    if (recorded.spans.size() > 1 && !kept.isEmpty())
        below += kept;
    const qreal lines = static_cast<qreal>(below.size()) + 4;
    paper.require(lines * paper.lineHeight(RecordType::Text) + paper.mm(4));
    paper.skip(paper.mm(1.5));
    paper.addText(recorded.rule.name, RecordType::Strong);
    for (const QString& text : below)
        paper.addText(text);
    paper.skip(paper.mm(0.5));
    if (recorded.spans.size() > mostSpans)
        return;
    PaperTable table(
        paper,
        {{RecordSummary::tr("Period"), 1.5}, {RecordSummary::tr("Counted"), 1.2}, {RecordSummary::tr("Outcome"), 2.0}});
    for (const RuleProgress& span : recorded.spans) {
        table.add({.cells = {daysOf(span.span), ruleCountText(recorded.rule, span),
                             ruleOutlookText(recorded.rule, span, contents.made.date())}});
    }
    table.draw();
}

void addRules(RecordPaper& paper, const RecordContents& contents)
{
    const auto rules = recordedRules(contents);
    if (rules.isEmpty())
        return;
    paper.addHeading(RecordSummary::tr("Rules"), paper.mm(25));
    for (const RecordedRule& rule : rules)
        addRule(paper, rule, contents);
}

} // namespace

QString recordTotalText(const RecordTotal& total)
{
    const AttendanceStatistics& statistics = total.statistics;
    QStringList parts{statistics.workdays == 1 ? RecordSummary::tr("1 workday") : workdaysText(statistics.workdays),
                      RecordSummary::tr("%1 in the office").arg(statistics.inOffice)};
    if (statistics.planned > 0)
        parts += RecordSummary::tr("%1 planned").arg(statistics.planned);
    parts += RecordSummary::tr("%1 days a week").arg(twoDecimals(shownAverage(statistics)));
    return parts.join(u" · "_s);
}

void addRecordSummary(RecordPaper& paper, const RecordContents& contents)
{
    const auto totals = recordTotals(contents);
    addTotals(paper, totals);
    addGoals(paper, contents, totals.last().statistics);
    addRules(paper, contents);
    const QStringList how = record_texts::howDaysCount(contents);
    paper.addHeading(RecordSummary::tr("How days count"),
                     static_cast<qreal>(how.size()) * paper.lineHeight(RecordType::Text));
    for (const QString& sentence : how)
        paper.addText(sentence);
}
