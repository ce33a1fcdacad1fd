// SPDX-License-Identifier: GPL-3.0-or-later
#include "CalendarExport.h"

#include "Period.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestLine = 75; // in bytes, without the line break

// Later texts of an event need a greater number, which must fit into 31 bits: seconds since this time do until 2094.
constexpr qint64 firstSequence = 1'767'225'600; // 1 January 2026 in seconds since 1970, in UTC

bool isWithinCharacter(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// Adds a line, folded where it is too long, but never within a character.
void addLine(QByteArray& file, QByteArrayView line)
{
    auto room = longestLine;
    while (line.size() > room) {
        auto end = room;
        while (isWithinCharacter(line.at(end)))
            --end;
        file.append(line.first(end)).append("\r\n ");
        line = line.sliced(end);
        room = longestLine - 1; // a blank goes before the rest
    }
    file.append(line).append("\r\n");
}

QByteArray escapedText(QString text)
{
    text.replace(u'\\', "\\\\"_L1).replace(u';', "\\;"_L1).replace(u',', "\\,"_L1).replace(u'\n', "\\n"_L1);
    return text.toUtf8();
}

QByteArray dateText(QDate date)
{
    return date.toString(u"yyyyMMdd"_s).toLatin1();
}

// A vacation day keeps others from planning anything; in any other state the person works.
bool isBusy(DayState state)
{
    return state == DayState::VACATION_DAY;
}

} // namespace

QByteArray calendarFile(const QList<DayRecord>& days, const QSet<DayState>& states, const QDateTime& now)
{
    const QByteArray time = now.toUTC().toString(u"yyyyMMdd'T'HHmmss'Z'"_s).toLatin1();
    const QByteArray sequence = QByteArray::number(qMax<qint64>(0, now.toSecsSinceEpoch() - firstSequence));
    QByteArray file;
    for (const char* line : {"BEGIN:VCALENDAR", "VERSION:2.0", "PRODID:-//Pellory//Pellory//EN", "CALSCALE:GREGORIAN"})
        addLine(file, line);
    for (const DayRecord& day : days) {
        if (!states.contains(day.state))
            continue;
        addLine(file, "BEGIN:VEVENT");
        addLine(file, "UID:" + dateText(day.date) + "@io.github.pellory.Pellory");
        addLine(file, "DTSTAMP:" + time);
        addLine(file, "LAST-MODIFIED:" + time);
        addLine(file, "SEQUENCE:" + sequence);
        addLine(file, "DTSTART;VALUE=DATE:" + dateText(day.date));
        // Without an end it lasts one day too. The format has no year 10000.
        if (day.date.addDays(1).year() <= lastYear)
            addLine(file, "DTEND;VALUE=DATE:" + dateText(day.date.addDays(1)));
        addLine(file, "SUMMARY:" + escapedText(description(day.state)));
        addLine(file, isBusy(day.state) ? "TRANSP:OPAQUE" : "TRANSP:TRANSPARENT");
        addLine(file, "END:VEVENT");
    }
    addLine(file, "END:VCALENDAR");
    return file;
}
