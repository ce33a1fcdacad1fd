// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "AbsencePicker.h"

class SelectedDays;
struct DayMark;

/// The menu of several days: the states and the kinds of absence, of which all of them get one.
class RangeMenu : public AbsencePicker {
    Q_OBJECT

public:
    using SetDays = std::function<void(DayState state, int absenceKind)>;

    /// `set` may be called after the menu has gone.
    RangeMenu(const CalendarParts& parts, const SelectedDays& days, const SetDays& set, QWidget* cell);

private:
    RangeMenu(const CalendarParts& parts, const SelectedDays& days, const SetDays& set,
              const std::optional<DayMark>& current, QWidget* cell);
};
