// SPDX-License-Identifier: GPL-3.0-or-later
#include "StoredDays.h"

#include "ModelContext.h"
#include "Month.h"

#include <map>
#include <utility>

CountedDays countedDays(ModelContext& context, DaySpan span, const Counting& counting, bool vacationDaysCountAsInOffice)
{
    std::map<std::pair<int, int>, std::shared_ptr<Month>> months;
    if (!span.isEmpty()) {
        for (const auto& month : context.fetchMonths(span.first, span.last))
            months.try_emplace({month->year, month->month}, month);
    }
    const Month* month = nullptr;
    std::pair<int, int> looked;
    const auto stateOn = [&](QDate date) {
        if (const std::pair number(date.year(), date.month()); number != std::exchange(looked, number)) {
            const auto found = months.find(number);
            month = found == months.end() ? nullptr : found->second.get();
        }
        const auto index = month != nullptr ? month->indexOf(date.day()) : std::nullopt;
        return index ? month->days.value().at(*index).state : DayState::UNKNOWN;
    };
    return {span, stateOn, counting, vacationDaysCountAsInOffice};
}
