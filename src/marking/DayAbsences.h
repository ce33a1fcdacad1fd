// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Absence.h"
#include "DayState.h"

#include <QCoreApplication>
#include <QHash>
#include <QList>
#include <QMap>

class ModelContext;

/// Why a person was out of office, day by day. Only DayMarker changes it, along with the states of days.
class DayAbsences {
    Q_DECLARE_TR_FUNCTIONS(DayAbsences)

public:
    explicit DayAbsences(ModelContext& context)
        : m_context(context)
    {
    }

    /// The kinds of the program, then those of the person in the order in which they were named. Without the latter,
    /// and with no choices of how they count, if the store cannot be read.
    [[nodiscard]] QList<AbsenceKind> kinds() const;
    /// The state in the person's language, with the kind of absence if it is known: "Out of Office (Sick)".
    [[nodiscard]] QString describe(DayState state, int kind) const;
    [[nodiscard]] static QString describe(DayState state, const AbsenceKind& kind);

    /// The kind of a day; AbsenceKind::none if it has none, or if the store cannot be read.
    [[nodiscard]] int kindOf(QDate date) const;
    /// Throws a StoreError if the store cannot be read.
    [[nodiscard]] const QHash<QDate, int>& all() const;
    /// Gives days a kind each, or none. It is saved with the next save of the context. Throws a StoreError, and changes
    /// nothing, if the store cannot be read and a day is to have a kind.
    void set(const QMap<QDate, int>& kinds);

private:
    ModelContext& m_context;
    /// Read when it is needed.
    mutable QHash<QDate, int> m_kinds;
    mutable bool m_isRead = false;
};
