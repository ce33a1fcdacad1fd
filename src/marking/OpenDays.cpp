// SPDX-License-Identifier: GPL-3.0-or-later
#include "OpenDays.h"

#include "Clock.h"
#include "CountingRecords.h"
#include "DayMarker.h"
#include "ModelContext.h"
#include "Month.h"
#include "StoreError.h"

#include <QLoggingCategory>

#include <algorithm>

namespace {

Q_LOGGING_CATEGORY(logOpenDays, "pellory.marking", QtInfoMsg)

} // namespace

OpenDays::OpenDays(DayMarker& marker, const CountingRecords& counting, const Clock& clock)
    : m_marker(marker)
    , m_counting(counting)
    , m_clock(clock)
{
    connect(&marker, &DayMarker::changed, this, &OpenDays::forgetFirst);
}

QList<QDate> OpenDays::in(const Month& month)
{
    const QDate today = m_clock.today();
    const Counting counting = m_counting.counting();
    QList<QDate> open;
    for (const Day& day : month.days.value()) {
        const QDate date = month.dateOf(day.id);
        if (day.isInMonth() && day.state == DayState::UNKNOWN && date < today && counting.isWorkday(date))
            open.append(date);
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
