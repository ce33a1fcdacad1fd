// SPDX-License-Identifier: GPL-3.0-or-later
#include "CalendarReader.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype maximumDays = 100'000;
constexpr qsizetype maximumProblems = 100;
constexpr qsizetype maximumNames = 5; // of one date
constexpr auto calendarComponent = "VCALENDAR"_L1;
constexpr auto eventComponent = "VEVENT"_L1;

CalendarFileError notACalendar()
{
    return CalendarFileError(CalendarFileError::tr("This is not a calendar file. Export the calendar in the iCalendar "
                                                   "format (.ics) and choose that file."));
}

CalendarFileError notText(const QByteArray& text)
{
    if (text.contains('\0'))
        return notACalendar();
    return CalendarFileError(CalendarFileError::tr("The calendar is not in UTF-8. Export it with the encoding UTF-8 in "
                                                   "the program that it comes from, and choose that file."));
}

} // namespace

CalendarReader::CalendarReader(QDate today)
    : m_today(today)
{
}

CalendarFileContents CalendarReader::read(const QByteArray& text)
{
    CalendarLines lines(text);
    auto line = lines.next();
    if (!line || line->name != "BEGIN"_L1 || line->keyword() != calendarComponent)
        throw notACalendar();
    for (; line; line = lines.next()) {
        if (!line->isText)
            throw notText(text);
        readLine(*line);
    }
    refuseUnfinishedEvent();
    if (m_isOpen)
        addProblem(CalendarFileError::tr("The file has no end. Events may be missing."));
    return contents();
}

void CalendarReader::readLine(const CalendarLine& line)
{
    if (line.name == "BEGIN"_L1)
        begin(line);
    else if (line.name == "END"_L1)
        end(line.keyword());
    else if (m_event && m_nested.isEmpty())
        m_event->read(line);
}

void CalendarReader::begin(const CalendarLine& line)
{
    const QString component = line.keyword();
    if (component == calendarComponent)
        m_isOpen = true;
    if (component == calendarComponent || component == eventComponent)
        refuseUnfinishedEvent();
    if (component == eventComponent)
        m_event.emplace(line.number);
    else if (m_event)
        m_nested.append(component);
}

void CalendarReader::end(const QString& component)
{
    if (component == eventComponent) {
        endEvent();
    } else if (component == calendarComponent) {
        refuseUnfinishedEvent();
        m_isOpen = false;
    } else if (const auto place = m_nested.lastIndexOf(component); place >= 0) {
        m_nested.resize(place); // the ends of what is in it may be missing
    }
}

void CalendarReader::endEvent()
{
    const auto event = std::exchange(m_event, {});
    m_nested.clear();
    if (!event || event->isCancelled())
        return;
    if (const QString problem = event->problem(); !problem.isEmpty())
        addProblem(problem);
    else
        addDays(*event);
}

void CalendarReader::refuseUnfinishedEvent()
{
    if (m_event)
        m_event->refuse(CalendarFileError::tr("its end is missing"));
    endEvent();
}

void CalendarReader::addDays(const CalendarEvent& event)
{
    for (const QDate date : event.dates(m_today.year())) {
        if (++m_days > maximumDays)
            throw CalendarFileError(
                CalendarFileError::tr(
                    "The calendar has more than %L1 days. Export only the calendar with the days off.")
                    .arg(maximumDays));
        QStringList& names = m_names[date];
        if (!event.summary().isEmpty() && names.size() < maximumNames && !names.contains(event.summary()))
            names.append(event.summary());
    }
}

void CalendarReader::addProblem(const QString& problem)
{
    if (m_problems.size() < maximumProblems)
        m_problems.append(problem);
    else
        ++m_furtherProblems;
}

CalendarFileContents CalendarReader::contents() const
{
    CalendarFileContents contents{.daysOff = {}, .problems = m_problems};
    for (auto day = m_names.begin(); day != m_names.end(); ++day)
        contents.daysOff.append({day.key(), day.value().join(u", "_s), DayOffSource::File});
    if (m_furtherProblems > 0)
        contents.problems.append(CalendarFileError::tr("%n more problems are not listed.", nullptr, m_furtherProblems));
    return contents;
}
