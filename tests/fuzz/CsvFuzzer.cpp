// SPDX-License-Identifier: GPL-3.0-or-later
#include "DaysCsv.h"
#include "DaysCsvReader.h"
#include "FileError.h"

// NOLINTNEXTLINE(readability-identifier-naming): libFuzzer looks for this name
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const QByteArray text(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    try {
        const DaysCsvContents contents = DaysCsvReader().read(text);
        const DaysCsvContents again = DaysCsvReader().read(daysCsv(contents.days, contents.kinds));
        if (again.days.size() != contents.days.size() || !again.problems.isEmpty())
            qFatal("What was written reads differently");
    } catch (const FileError& error) {
        if (error.description().isEmpty())
            qFatal("It is refused without a reason");
    }
    return 0;
}
