// SPDX-License-Identifier: GPL-3.0-or-later
#include "QuarterMonths.h"

#include "ModelContext.h"
#include "Month.h"

QList<std::shared_ptr<Month>> quarterMonths(ModelContext& context, const YearQuarter& quarter)
{
    QList<std::shared_ptr<Month>> months;
    for (const int month : quarter.months()) {
        const auto stored = context.fetchMonths(quarter.year, month);
        months.append(stored.isEmpty() ? nullptr : stored.first());
    }
    for (qsizetype i = 0; i < months.size(); ++i) {
        if (!months[i]) {
            months[i] = std::make_shared<Month>(quarter.year, quarter.months().at(static_cast<std::size_t>(i)));
            context.insert(months[i]);
        }
    }
    return months;
}
