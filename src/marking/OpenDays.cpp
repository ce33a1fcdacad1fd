// SPDX-License-Identifier: GPL-3.0-or-later
#include "OpenDays.h"

#include "Clock.h"
#include "DayMarker.h"
#include "ModelContext.h"
#include "Month.h"
#include "StoreError.h"

#include <QLoggingCategory>

#include <algorithm>

namespace {

Q_LOGGING_CATEGORY(logOpenDays, "pellory.marking", QtInfoMsg)

} // namespace

OpenDays::OpenDays(DayMarker& marker, const Clock& clock)
    : m_marker(marker)
    , m_clock(clock)
{
    connect(&marker, &DayMarker::changed, this, &OpenDays::forgetFirst);
}

QList<QDate> OpenDays::in(const Month& month)
{
    const QDate today = m_clock.today();
    QList<QDate> open;
    for (const Day& day : month.days.value()) {
        if (day.isInMonth() && day.isWorkday && day.state == DayState::UNKNOWN && month.dateOf(day.id) < today)
            open.append(month.dateOf(day.id));
    }
    if (open.isEmpty())
        return open;
    const QDate first = firstMarkedDay();
    open.removeIf([first](QDate date) { return !first.isValid() || date < first; });
    return open;
}

QDate OpenDays::firstMarkedDay()
{
    try {
        if (!m_first)
            m_first = m_marker.context().firstMarkedDay();
        return *m_first;
    } catch (const StoreError& error) {
        qCWarning(logOpenDays, "The first marked day cannot be read: %s", error.what());
        return {};
    }
}

void OpenDays::forgetFirst(const ChangedDays& change)
{
    const auto isBeforeOthers = [this](QDate date) { return !m_first->isValid() || date <= *m_first; };
    if (m_first && std::ranges::any_of(change.dates, isBeforeOthers))
        m_first.reset();
}
