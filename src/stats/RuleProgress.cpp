// SPDX-License-Identifier: GPL-3.0-or-later
#include "RuleProgress.h"

#include <algorithm>

CountedDays::CountedDays(DaySpan span, const StateOn& stateOn, const Counting& counting,
                         bool vacationDaysCountAsInOffice)
    : m_span(span)
{
    m_days.reserve(static_cast<std::size_t>(std::max<qint64>(0, span.first.daysTo(span.last) + 1)));
    for (QDate date = span.first; date <= span.last; date = date.addDays(1)) {
        const DayState state = stateOn(date);
        m_days.push_back({counting.count(date, state, vacationDaysCountAsInOffice), state, counting.isScheduled(date)});
    }
}

const CountedDay& CountedDays::on(QDate date) const
{
    return m_days.at(static_cast<std::size_t>(m_span.first.daysTo(date))).counted;
}

DayState CountedDays::stateOn(QDate date) const
{
    return m_days.at(static_cast<std::size_t>(m_span.first.daysTo(date))).state;
}

bool CountedDays::isScheduled(QDate date) const
{
    return m_days.at(static_cast<std::size_t>(m_span.first.daysTo(date))).isScheduled;
}
