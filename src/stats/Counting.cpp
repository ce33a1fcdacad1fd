// SPDX-License-Identifier: GPL-3.0-or-later
#include "Counting.h"

#include "Month.h"

#include <algorithm>
#include <utility>

namespace {

template <class Item, class Key> void sortByKey(QList<Item>& items, Key key)
{
    std::ranges::stable_sort(items, {}, key);
}

} // namespace

Counting::Counting(Choices choices)
{
    const bool isTreated = std::ranges::any_of(
        choices.kinds, [](const AbsenceKind& kind) { return kind.treatment != Treatment::OutOfOffice; });
    const bool hasAbsences = !choices.absences.isEmpty();
    if (!choices.leavesOutVacation && choices.daysOff.isEmpty() && choices.workWeeks.isEmpty() && !isTreated &&
        !hasAbsences)
        return;
    sortByKey(choices.daysOff, &DayOff::date);
    sortByKey(choices.workWeeks, &WorkWeek::from);
    m_choices = std::make_shared<const Choices>(std::move(choices));
}

bool Counting::isScheduled(QDate date) const
{
    if (!m_choices)
        return isMondayToFriday(date);
    const auto next = std::ranges::upper_bound(m_choices->workWeeks, date, {}, &WorkWeek::from);
    return next == m_choices->workWeeks.begin() ? isMondayToFriday(date) : std::prev(next)->weekdays.contains(date);
}

bool Counting::isWorkday(QDate date) const
{
    return isScheduled(date) && dayOff(date) == nullptr;
}

const DayOff* Counting::dayOff(QDate date) const
{
    if (!m_choices)
        return nullptr;
    const auto next = std::ranges::upper_bound(m_choices->daysOff, date, {}, &DayOff::date);
    const bool isFound = next != m_choices->daysOff.begin() && std::prev(next)->date == date;
    return isFound ? &*std::prev(next) : nullptr;
}

int Counting::absenceKind(QDate date) const
{
    return m_choices ? m_choices->absences.value(date) : AbsenceKind::none;
}

CountedDay Counting::count(QDate date, DayState state, bool vacationDaysCountAsInOffice) const
{
    CountedDay day{.isWorkday = isWorkday(date), .isPlanned = state == DayState::WILL_BE_IN_OFFICE};
    switch (state) {
    case DayState::IN_OFFICE:
        day.isInOffice = true;
        break;
    case DayState::VACATION_DAY:
        day.isInOffice = vacationDaysCountAsInOffice;
        day.isWorkday = day.isWorkday && !(m_choices && m_choices->leavesOutVacation);
        break;
    case DayState::OUT_OF_OFFICE: {
        day.absenceKind = absenceKind(date);
        const Treatment treatment = treatmentOf(day.absenceKind);
        day.isInOffice = treatment == Treatment::InOffice;
        day.isOutOfOffice = treatment == Treatment::OutOfOffice;
        day.isWorkday = day.isWorkday && treatment != Treatment::LeftOut;
        break;
    }
    case DayState::UNKNOWN:
    case DayState::WILL_BE_IN_OFFICE:
        break;
    }
    return day;
}

Treatment Counting::treatmentOf(int kind) const
{
    if (!m_choices || kind == AbsenceKind::none)
        return Treatment::OutOfOffice;
    const auto last = std::find_if(m_choices->kinds.crbegin(), m_choices->kinds.crend(),
                                   [kind](const AbsenceKind& candidate) { return candidate.id == kind; });
    return last == m_choices->kinds.crend() ? Treatment::OutOfOffice : last->treatment;
}
