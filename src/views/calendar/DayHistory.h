// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DayChange.h"

#include <QCoreApplication>
#include <QList>

#include <optional>

/// A state that a day had.
struct PastState {
    DayState state = DayState::UNKNOWN;
    /// See AbsenceKind.
    int absenceKind = 0;
    /// What set it; unknown for the state before the first recorded change.
    std::optional<DayChange> setBy = {};

    bool operator==(const PastState&) const = default;
};

/// The history of a day as a person reads it.
class DayHistory {
    Q_DECLARE_TR_FUNCTIONS(DayHistory)

public:
    /// The states that a day had, the newest first. What changed together is one step, and a step that led back to
    /// where it began is none. `changes` are those of the day, the newest first.
    [[nodiscard]] static QList<PastState> states(const QList<DayChange>& changes);

    /// Who set a state and when, such as "Automatically, 9:12, Head Office". A date is left out if it is that of the
    /// day itself, and its year if it is this year.
    [[nodiscard]] static QString describe(const PastState& state, QDate today);

private:
    [[nodiscard]] static QString who(ChangedBy by);
};
