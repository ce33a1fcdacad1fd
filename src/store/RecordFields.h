// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Absence.h"
#include "AppSettings.h"
#include "AttendanceRule.h"
#include "DayChange.h"
#include "DayNote.h"
#include "Field.h"
#include "Month.h"
#include "WorkTime.h"

/// The fields of each kind of record. A new field is one more line here, and a migration (see Schema.h).

[[nodiscard]] RecordFields<Month> monthFields();
[[nodiscard]] RecordFields<Goal> goalFields();
[[nodiscard]] RecordFields<DayChange> dayChangeFields();
[[nodiscard]] RecordFields<DayNote> dayNoteFields();

/// Settings name their goals by id. `storedGoals` returns the goals that they can name.
[[nodiscard]] RecordFields<AppSettings> settingsFields(const std::function<AppSettings::Goals()>& storedGoals = {});

/// The fields of records that are few and never change.
template <class Record> [[nodiscard]] RecordFields<Record> fieldsOf();
template <> RecordFields<AbsenceKind> fieldsOf<AbsenceKind>();
template <> RecordFields<DayAbsence> fieldsOf<DayAbsence>();
template <> RecordFields<DayOff> fieldsOf<DayOff>();
template <> RecordFields<HolidayRegion> fieldsOf<HolidayRegion>();
template <> RecordFields<WorkWeek> fieldsOf<WorkWeek>();
template <> RecordFields<CountingChoices> fieldsOf<CountingChoices>();
template <> RecordFields<UsualWeek> fieldsOf<UsualWeek>();
template <> RecordFields<AttendanceRule> fieldsOf<AttendanceRule>();
