// SPDX-License-Identifier: GPL-3.0-or-later
// Prints the public holidays of all areas in the years from the first argument to the second, each as "AREA DATE".
#include "PublicHolidays.h"

#include <QStringList>

#include <cstdio>
#include <span>

int main(int argc, char* argv[])
{
    if (argc != 3)
        return 2;
    const std::span arguments(argv, 3);
    for (const HolidayArea& area : holidayAreas()) {
        for (int year = atoi(arguments[1]); year <= atoi(arguments[2]); ++year) {
            for (const DayOff& holiday : publicHolidays(area.id, year))
                std::printf("%s %s %s\n", qUtf8Printable(area.id), qUtf8Printable(holiday.date.toString(Qt::ISODate)),
                            qUtf8Printable(holiday.name));
        }
    }
}
