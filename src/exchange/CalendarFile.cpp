// SPDX-License-Identifier: GPL-3.0-or-later
#include "CalendarFile.h"

#include "CalendarReader.h"
#include "FileBytes.h"

namespace {

constexpr qint64 largestCalendar = 10'000'000;

} // namespace

CalendarFileContents readCalendarFile(const QString& path, QDate today)
{
    const QByteArray text = readFile(path, largestCalendar);
    if (text.size() > largestCalendar)
        throw CalendarFileError(CalendarFileError::tr(
            "The file has more than 10 MB. Export only the calendar with the days off, and choose that file."));
    return CalendarReader(today).read(text);
}
