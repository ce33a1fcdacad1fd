// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Absence.h"
#include "DayChange.h"
#include "DayState.h"
#include "WorkTime.h"

#include <QDate>
#include <QString>

#include <optional>

/// All that is stored about one day.
struct DayRecord {
    QDate date;
    DayState state = DayState::UNKNOWN;
    /// Of a day out of office; see AbsenceKind.
    int absenceKind = AbsenceKind::none;
    QString note = {};
    std::optional<DayOff> dayOff = {};
    /// Who gave the day its state, and when; nothing if that is not known.
    std::optional<DayChange> lastChange = {};

    bool operator==(const DayRecord&) const = default;
};
