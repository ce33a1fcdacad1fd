// SPDX-License-Identifier: GPL-3.0-or-later
#include "InOfficeModelUpdater.h"

#include "Clock.h"
#include "CountingRecords.h"
#include "DayMarker.h"
#include "InOfficeDetectionError.h"
#include "Log.h"
#include "ModelContainer.h"
#include "Month.h"
#include "Notifier.h"
#include "StoredMonths.h"
#include "UsualWeekPlanner.h"

namespace {

// How far to look for a workday: beyond any holidays.
constexpr int farthest = 62;

QDate workdayBefore(QDate today, const Counting& counting)
{
    for (int days = 1; days <= farthest; ++days) {
        if (counting.isWorkday(today.addDays(-days)))
            return today.addDays(-days);
    }
    return {};
}

} // namespace

bool InOfficeModelUpdater::update(bool notificationsEnabled, bool inOfficeNow, bool markPreviousWorkday,
                                  const QString& network)
{
    const QDate today = m_clock.today();
    const auto monthOfToday = monthOf(today);

    const qint64 group = inOfficeNow ? mark(*monthOfToday, today, DayState::IN_OFFICE, network) : 0;
    if (group != 0) {
        qCInfo(logDetection, "Logged as in office on %d-%d-%d", today.year(), today.month(), today.day());
        if (notificationsEnabled)
            m_notifier.post({tr("Pellory"), tr("You have been marked as in the office today"), {}, today, group});
    }
    if (markPreviousWorkday) {
        if (const QDate workday = workdayBefore(today, m_counting.counting()); workday.isValid())
            markAsOut(workday, notificationsEnabled);
    }
    return group != 0;
}

void InOfficeModelUpdater::markAsOut(QDate date, bool notificationsEnabled)
{
    const qint64 group = mark(*monthOf(date), date, DayState::OUT_OF_OFFICE);
    if (group == 0)
        return;
    qCInfo(logDetection, "Logged as out of office on %d-%d-%d", date.year(), date.month(), date.day());
    if (notificationsEnabled)
        m_notifier.post(
            {tr("(Not) Pellory"), tr("You have been marked as out of office for yesterday"), {}, date, group});
}

std::shared_ptr<Month> InOfficeModelUpdater::monthOf(QDate date)
{
    try {
        return UsualWeekPlanner(m_marker, m_counting, m_clock).findOrCreateMonth(m_container.mainContext(), date);
    } catch (const DuplicateMonthError&) {
        throw InOfficeDetectionError(InOfficeDetectionError::duplicateMonthModels);
    }
}

qint64 InOfficeModelUpdater::mark(Month& month, QDate date, DayState state, const QString& network)
{
    const auto index = month.indexOf(date.day());
    if (!index)
        qFatal("The month %d-%d has no day %d", date.year(), date.month(), date.day());
    return m_marker.mark(month, *index, state, MarkedBy::Check, network);
}
