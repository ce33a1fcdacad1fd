// SPDX-License-Identifier: GPL-3.0-or-later
#include "SelectedDays.h"

#include "Counting.h"
#include "DaySpan.h"

#include <algorithm>

SelectedDays::SelectedDays(const DaySpan& span, const Counting& counting)
{
    for (QDate date = span.first; date <= span.last; date = date.addDays(1))
        m_dates.append(date);
    const auto isWorkday = [&](QDate date) { return counting.isWorkday(date); };
    m_areWorkdays = std::ranges::any_of(m_dates, isWorkday);
    if (m_areWorkdays)
        m_dates.removeIf([&](QDate date) { return !isWorkday(date); });
}

QString SelectedDays::heading() const
{
    const auto count = static_cast<int>(m_dates.size());
    if (!m_areWorkdays)
        return tr("Set %n Days", nullptr, count);
    return count == 1 ? tr("Set 1 Workday") : tr("Set %n Workdays", nullptr, count);
}

QString SelectedDays::spoken() const
{
    const auto count = static_cast<int>(m_dates.size());
    if (!m_areWorkdays)
        return tr("%n days selected", nullptr, count);
    return count == 1 ? tr("1 workday selected") : tr("%n workdays selected", nullptr, count);
}
