// SPDX-License-Identifier: GPL-3.0-or-later
#include "CalendarReader.h"

#include <algorithm>

// NOLINTNEXTLINE(readability-identifier-naming): libFuzzer looks for this name
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const QByteArray text(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    try {
        const CalendarFileContents contents = CalendarReader(QDate(2026, 11, 20)).read(text);
        if (!std::ranges::is_sorted(contents.daysOff, std::ranges::less_equal(), &DayOff::date))
            qFatal("The days are not in order");
    } catch (const CalendarFileError& error) {
        if (error.description().isEmpty())
            qFatal("It is refused without a reason");
    }
    return 0;
}
