// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "AppSettings.h"
#include "DayChange.h"
#include "DayNote.h"
#include "Field.h"
#include "Month.h"

/// The fields of each kind of record. A new field is one more line here, and a migration (see Schema.h).

[[nodiscard]] RecordFields<Month> monthFields();
[[nodiscard]] RecordFields<Goal> goalFields();
[[nodiscard]] RecordFields<DayChange> dayChangeFields();
[[nodiscard]] RecordFields<DayNote> dayNoteFields();

/// Settings name their goals by id. `storedGoals` returns the goals that they can name.
[[nodiscard]] RecordFields<AppSettings> settingsFields(const std::function<AppSettings::Goals()>& storedGoals = {});
