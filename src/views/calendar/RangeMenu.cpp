// SPDX-License-Identifier: GPL-3.0-or-later
#include "RangeMenu.h"

#include "DayMarker.h"
#include "ModelContext.h"
#include "Month.h"
#include "SelectedDays.h"
#include "StoreError.h"

#include <algorithm>
#include <map>
#include <utility>

namespace {

// How all of the days are marked; nothing if they differ.
std::optional<DayMark> commonMark(const DayMarker& marker, const QList<QDate>& dates)
{
    std::map<std::pair<int, int>, std::shared_ptr<Month>> months;
    for (const auto& month : marker.context().fetchMonths(dates.first(), dates.last()))
        months.try_emplace({month->year, month->month}, month);
    const auto markOn = [&](QDate date) {
        const auto found = months.find({date.year(), date.month()});
        return found == months.end() ? DayMark{date} : marker.markOn(*found->second, date).value_or(DayMark{date});
    };
    const DayMark first = markOn(dates.first());
    const bool isCommon = std::ranges::all_of(dates, [&](QDate date) {
        const DayMark mark = markOn(date);
        return mark.state == first.state && mark.absenceKind == first.absenceKind;
    });
    return isCommon ? std::optional(first) : std::nullopt;
}

std::optional<DayMark> commonMarkOrNone(const DayMarker& marker, const QList<QDate>& dates)
{
    try {
        return commonMark(marker, dates);
    } catch (const StoreError&) {
        return {};
    }
}

} // namespace

RangeMenu::RangeMenu(const CalendarParts& parts, const SelectedDays& days, const SetDays& set, QWidget* cell)
    : RangeMenu(parts, days, set, commonMarkOrNone(parts.marker, days.dates()), cell)
{
}

RangeMenu::RangeMenu(const CalendarParts& parts, const SelectedDays& days, const SetDays& set,
                     const std::optional<DayMark>& current, QWidget* cell)
    : AbsencePicker(parts, current ? std::optional(current->state) : std::nullopt, cell, ClickKeys::Hidden)
{
    setHeading(days.heading());
    addSeparator();
    addKinds(current ? current->absenceKind : AbsenceKind::none,
             [set](int kind) { set(DayState::OUT_OF_OFFICE, kind); });
    connect(this, &StatusPicker::chosen, this, [set](DayState state) { set(state, AbsenceKind::none); });
}
