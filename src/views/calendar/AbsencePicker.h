// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CalendarParts.h"
#include "Popover.h"
#include "StatusPicker.h"

#include <functional>

/// A menu of states that also offers the kinds of absence.
class AbsencePicker : public StatusPicker {
    Q_OBJECT

public:
    AbsencePicker(const CalendarParts& parts, std::optional<DayState> current, QWidget* cell,
                  ClickKeys keys = ClickKeys::Shown);

Q_SIGNALS:
    /// Emitted with a new popover, for the window to open in its own way.
    void popoverRequested(Popover* popover);

protected:
    /// Adds the submenu of the kinds, of which `current` is checked. `choose` is called with the number of a kind, or
    /// with none if the current one was chosen again. It may be called after the menu has gone.
    void addKinds(int current, const std::function<void(int kind)>& choose);

    [[nodiscard]] const CalendarParts& parts() const { return m_parts; }

private:
    void requestOtherKind(const std::function<void(int kind)>& choose);

    CalendarParts m_parts;
    QWidget* m_cell;
};
