// SPDX-License-Identifier: GPL-3.0-or-later
#include "StoredMonths.h"

#include "ModelContext.h"
#include "Month.h"

#include <span>

namespace {

enum class Duplicates { Ignored, Refused };

// Everything is read before anything is created, so that an unreadable store is left as it is.
QList<std::shared_ptr<Month>> findOrCreate(ModelContext& context, int year, std::span<const int> numbers,
                                           Duplicates duplicates)
{
    QList<std::shared_ptr<Month>> months;
    for (const int number : numbers) {
        const auto found = context.fetchMonths(year, number);
        if (found.size() > 1 && duplicates == Duplicates::Refused)
            throw DuplicateMonthError();
        months.append(found.value(0));
    }
    for (qsizetype i = 0; i < months.size(); ++i) {
        if (!months[i]) {
            months[i] = std::make_shared<Month>(year, numbers[static_cast<std::size_t>(i)]);
            context.insert(months[i]);
        }
    }
    return months;
}

} // namespace

std::shared_ptr<Month> findOrCreateMonth(ModelContext& context, QDate date)
{
    const int number = date.month();
    return findOrCreate(context, date.year(), {&number, 1}, Duplicates::Refused).first();
}

std::shared_ptr<Month> storedMonth(ModelContext& context, QDate date)
{
    return context.fetchMonths(date.year(), date.month()).value(0);
}

QList<std::shared_ptr<Month>> quarterMonths(ModelContext& context, const YearQuarter& quarter)
{
    return findOrCreate(context, quarter.year, quarter.months(), Duplicates::Ignored);
}

QList<std::shared_ptr<Month>> yearMonths(ModelContext& context, int year)
{
    constexpr int monthsOfYear = 12;
    QList<std::shared_ptr<Month>> months(monthsOfYear);
    for (const auto& month : context.fetchMonths(QDate(year, 1, 1), QDate(year, monthsOfYear, 1))) {
        if (auto& place = months[month->month - 1]; !place)
            place = month;
    }
    for (int number = 1; auto& month : months) {
        if (!month)
            month = std::make_shared<Month>(year, number);
        ++number;
    }
    return months;
}
