// SPDX-License-Identifier: GPL-3.0-or-later
#include "StoredDays.h"

#include "Month.h"
#include "StoredMonths.h"

namespace {

DayState stateIn(const Month& month, QDate date)
{
    const auto index = month.indexOf(date.day());
    return index ? month.days.value().at(*index).state : DayState::UNKNOWN;
}

} // namespace

CountedDays countedDays(ModelContext& context, DaySpan span, const Counting& counting, bool vacationDaysCountAsInOffice)
{
    std::shared_ptr<Month> month;
    QDate lastRead;
    const auto stateOn = [&](QDate date) {
        const QDate first = date.addDays(1 - date.day());
        if (first != lastRead) {
            month = storedMonth(context, date);
            lastRead = first;
        }
        return month ? stateIn(*month, date) : DayState::UNKNOWN;
    };
    return {span, stateOn, counting, vacationDaysCountAsInOffice};
}
