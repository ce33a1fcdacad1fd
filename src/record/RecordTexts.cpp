// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecordTexts.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct RecordTexts {
    Q_DECLARE_TR_FUNCTIONS(RecordTexts)
};

bool isWholeMonths(DaySpan span, int count)
{
    return span.first.day() == 1 && (span.first.month() - 1) % count == 0 &&
           span.last == span.first.addMonths(count).addDays(-1);
}

QString weekdayNames(Weekdays weekdays)
{
    if (weekdays == Weekdays::mondayToFriday())
        return RecordTexts::tr("Monday to Friday");
    QStringList names;
    for (int day = Qt::Monday; day <= Qt::Sunday; ++day) {
        if (weekdays.contains(day))
            names.append(QLocale().standaloneDayName(day));
    }
    return names.isEmpty() ? RecordTexts::tr("none", "workdays") : QLocale().createSeparatedList(names);
}

QStringList workdayTexts(const RecordContents& contents)
{
    QStringList texts;
    const auto& weeks = contents.workWeeks;
    if (weeks.isEmpty() || weeks.first().from > contents.period.first)
        texts.append(RecordTexts::tr("Workdays: Monday to Friday."));
    for (qsizetype i = 0; i < weeks.size(); ++i) {
        const bool hasEnded = i + 1 < weeks.size() && weeks.at(i + 1).from <= contents.period.first;
        if (hasEnded || weeks.at(i).from > contents.period.last)
            continue;
        texts.append(RecordTexts::tr("Workdays from %1 on: %2.", "date, weekdays")
                         .arg(record_texts::date(weeks.at(i).from), weekdayNames(weeks.at(i).weekdays)));
    }
    return texts;
}

QString vacationText(const RecordContents& contents)
{
    if (contents.vacationDaysCountAsInOffice)
        return RecordTexts::tr("Vacation days count as in the office.");
    return contents.leavesOutVacation ? RecordTexts::tr("Vacation days are left out of the workdays.")
                                      : RecordTexts::tr("Vacation days are workdays that are not in the office.");
}

QString daysOffText(const RecordContents& contents)
{
    const auto count =
        std::ranges::count_if(contents.days, [](const DayRecord& day) { return day.dayOff.has_value(); });
    if (count == 0)
        return RecordTexts::tr("There are no days off in this period.");
    return count == 1
               ? RecordTexts::tr("1 day off in this period is not a workday.")
               : RecordTexts::tr("%n days off in this period are not workdays.", nullptr, static_cast<int>(count));
}

} // namespace

namespace record_texts {

QString date(QDate date)
{
    //: A date in the format of QLocale::toString(). Put words in single quotes: 'the' d.
    return QLocale().toString(date, RecordTexts::tr("d MMMM yyyy"));
}

QString period(DaySpan span)
{
    QString year = QString::number(span.first.year());
    if (isWholeMonths(span, 1))
        return RecordTexts::tr("%1 %2", "month, year").arg(QLocale().standaloneMonthName(span.first.month()), year);
    if (isWholeMonths(span, 3))
        return RecordTexts::tr("Q%1 %2", "quarter, year").arg(QString::number((span.first.month() + 2) / 3), year);
    if (isWholeMonths(span, 12))
        return year;
    return RecordTexts::tr("%1 to %2", "dates").arg(date(span.first), date(span.last));
}

QString fileName(DaySpan span)
{
    QString when = span.first.toString(u"yyyy-MM-dd"_s);
    if (isWholeMonths(span, 1))
        when = span.first.toString(u"yyyy-MM"_s);
    else if (isWholeMonths(span, 3))
        when = u"%1-Q%2"_s.arg(span.first.toString(u"yyyy"_s)).arg((span.first.month() + 2) / 3);
    else if (isWholeMonths(span, 12))
        when = span.first.toString(u"yyyy"_s);
    else if (span.last != span.first)
        when += u'_' + span.last.toString(u"yyyy-MM-dd"_s);
    //: The name of a file; %1 is such as 2026-11.
    return RecordTexts::tr("Office Days %1").arg(when).replace(u'/', u'-');
}

QString kind(const DayRecord& day, const QList<AbsenceKind>& kinds)
{
    const auto found = std::ranges::find(kinds, day.absenceKind, &AbsenceKind::id);
    return day.absenceKind == AbsenceKind::none || found == kinds.end() ? QString() : description(*found);
}

QString state(const DayRecord& day, const QList<AbsenceKind>& kinds)
{
    const QString why = kind(day, kinds);
    return why.isEmpty() ? description(day.state)
                         : RecordTexts::tr("%1 (%2)", "state and reason").arg(description(day.state), why);
}

QString dayOff(const DayRecord& day)
{
    if (!day.dayOff)
        return {};
    return day.dayOff->name.isEmpty() ? RecordTexts::tr("Day Off") : day.dayOff->name;
}

QString setBy(const DayRecord& day)
{
    if (!day.lastChange)
        return {};
    switch (day.lastChange->by) {
    case ChangedBy::Hand:
        return RecordTexts::tr("By hand");
    case ChangedBy::Check:
        return day.lastChange->network.isEmpty() ? RecordTexts::tr("Automatically")
                                                 : RecordTexts::tr("Office network %1").arg(day.lastChange->network);
    case ChangedBy::Undo:
        return RecordTexts::tr("Undone by hand");
    case ChangedBy::Redo:
        return RecordTexts::tr("Redone by hand");
    case ChangedBy::Restore:
        return RecordTexts::tr("Restored from a backup");
    case ChangedBy::Pattern:
        return RecordTexts::tr("By a pattern");
    case ChangedBy::Import:
        return RecordTexts::tr("Imported");
    }
    Q_UNREACHABLE();
}

QDateTime setAt(const DayRecord& day)
{
    return day.lastChange ? QDateTime::fromMSecsSinceEpoch(day.lastChange->time) : QDateTime();
}

QString change(const DayRecord& day)
{
    if (!day.lastChange)
        return {};
    //: A short date in the format of QLocale::toString(). Put words in single quotes: 'the' d.
    const QString when = QLocale().toString(setAt(day).date(), RecordTexts::tr("d MMM yyyy"));
    return RecordTexts::tr("%1, %2, %3", "who, date, time")
        .arg(setBy(day), when, QLocale().toString(setAt(day).time(), QLocale::ShortFormat));
}

QStringList howDaysCount(const RecordContents& contents)
{
    QStringList texts = workdayTexts(contents);
    texts += daysOffText(contents);
    texts += vacationText(contents);
    for (const AbsenceKind& kind : contents.kinds) {
        if (kind.treatment == Treatment::InOffice)
            texts +=
                RecordTexts::tr("Out of office for the reason %1: counts as in the office.").arg(description(kind));
        else if (kind.treatment == Treatment::LeftOut)
            texts +=
                RecordTexts::tr("Out of office for the reason %1: left out of the workdays.").arg(description(kind));
    }
    texts += RecordTexts::tr("Averages are days in the office per week of five workdays.");
    return texts;
}

} // namespace record_texts
