// SPDX-License-Identifier: GPL-3.0-or-later
#include "CalendarEvent.h"

#include "CalendarFile.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int recurringYears = 10;
constexpr qint64 maximumLength = 366;
constexpr qsizetype maximumSummary = 100;

// A date has eight digits; with a time there are more.
QDate dateFrom(QStringView value)
{
    const bool isDate = value.size() == 8 && std::ranges::all_of(value, [](QChar character) {
                            return character >= u'0' && character <= u'9';
                        });
    return isDate ? QDate(value.left(4).toInt(), value.sliced(4, 2).toInt(), value.sliced(6).toInt()) : QDate();
}

/// A text without its escapes, on one line.
QString plainText(const QString& value)
{
    QString text;
    for (qsizetype i = 0; i < value.size(); ++i) {
        const bool isEscaped = value.at(i) == u'\\' && i + 1 < value.size();
        const QChar character = isEscaped ? value.at(++i) : value.at(i);
        text.append(isEscaped && character.toLower() == u'n' ? u' ' : character);
    }
    text = text.simplified();
    return text.size() > maximumSummary ? text.left(maximumSummary) + u'…' : text;
}

} // namespace

CalendarEvent::CalendarEvent(int line)
    : m_line(line)
{
}

void CalendarEvent::read(const CalendarLine& line)
{
    if (line.name == "SUMMARY"_L1)
        m_summary = plainText(line.value);
    else if (line.name == "STATUS"_L1)
        m_isCancelled = line.keyword() == "CANCELLED"_L1;
    else if (line.name == "DTSTART"_L1)
        readStart(line);
    else if (line.name == "DTEND"_L1)
        readEnd(line);
    else if (line.name == "DURATION"_L1)
        readDuration(line);
    else if (line.name == "RRULE"_L1)
        readRecurrence(line);
    else if (line.name == "EXDATE"_L1)
        readExceptions(line);
    else if (line.name == "RDATE"_L1 || line.name == "RECURRENCE-ID"_L1 || line.name == "EXRULE"_L1)
        refuse(CalendarFileError::tr("it recurs in a way that is not supported"));
}

void CalendarEvent::readStart(const CalendarLine& line)
{
    m_start = dateOf(line);
}

void CalendarEvent::readEnd(const CalendarLine& line)
{
    m_end = dateOf(line);
}

void CalendarEvent::readDuration(const CalendarLine& line)
{
    static const QRegularExpression days(u"^\\+?P(\\d{1,6})([DW])$"_s);
    const auto match = days.match(line.keyword());
    if (!match.hasMatch())
        refuse(CalendarFileError::tr("it does not last whole days"));
    else
        m_days = match.capturedView(1).toLongLong() * (match.capturedView(2) == u"W" ? 7 : 1);
}

void CalendarEvent::readRecurrence(const CalendarLine& line)
{
    if (m_isYearly || line.keyword() != "FREQ=YEARLY"_L1)
        refuse(CalendarFileError::tr("it recurs in a way that is not supported"));
    m_isYearly = true;
}

void CalendarEvent::readExceptions(const CalendarLine& line)
{
    for (const QString& value : line.value.split(u',')) {
        CalendarLine one = line;
        one.value = value;
        m_exceptions.append(dateOf(one));
    }
}

QDate CalendarEvent::dateOf(const CalendarLine& line)
{
    const QDate date = dateFrom(QStringView(line.value).trimmed());
    if (date.isValid())
        return date;
    const bool hasTime = line.value.contains(u'T', Qt::CaseInsensitive);
    refuse(hasTime ? CalendarFileError::tr("it has a time, and only all-day events count")
                   : CalendarFileError::tr("\"%1\" is not a date").arg(line.value.left(20)));
    return {};
}

void CalendarEvent::refuse(const QString& problem)
{
    if (m_problem.isEmpty())
        m_problem = problem;
}

QString CalendarEvent::reason() const
{
    if (!m_problem.isEmpty())
        return m_problem;
    if (!m_start.isValid())
        return CalendarFileError::tr("it has no date");
    if ((m_end.isValid() && m_days) || length() < 1)
        return CalendarFileError::tr("its end does not fit its start");
    if (length() > maximumLength)
        return CalendarFileError::tr("it is longer than a year");
    return {};
}

QString CalendarEvent::problem() const
{
    const QString why = reason();
    if (why.isEmpty())
        return {};
    return m_summary.isEmpty()
               ? CalendarFileError::tr("Line %1: an event is left out: %2.").arg(m_line).arg(why)
               : CalendarFileError::tr("Line %1: \"%2\" is left out: %3.").arg(QString::number(m_line), m_summary, why);
}

// Many programs write an end that is the same day, although it is exclusive.
qint64 CalendarEvent::length() const
{
    if (m_days)
        return *m_days;
    return m_end.isValid() && m_end != m_start ? m_start.daysTo(m_end) : 1;
}

QList<QDate> CalendarEvent::starts(int firstYear) const
{
    if (!m_isYearly)
        return {m_start};
    QList<QDate> starts;
    for (int year = std::max(firstYear, m_start.year()); year < firstYear + recurringYears; ++year) {
        const QDate start(year, m_start.month(), m_start.day());
        if (start.isValid()) // not so 29 February in most years
            starts.append(start);
    }
    return starts;
}

QList<QDate> CalendarEvent::dates(int firstYear) const
{
    QList<QDate> dates;
    for (const QDate start : starts(firstYear)) {
        if (m_exceptions.contains(start))
            continue;
        for (qint64 day = 0; day < length(); ++day)
            dates.append(start.addDays(day));
    }
    return dates;
}
