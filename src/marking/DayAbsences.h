// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Absence.h"

#include <QHash>

class ModelContext;

/// Why a person was out of office, day by day. Only DayMarker changes it, along with the states of days.
class DayAbsences {
public:
    explicit DayAbsences(ModelContext& context)
        : m_context(context)
    {
    }

    /// The kind of a day; AbsenceKind::none if it has none, or if the store cannot be read.
    [[nodiscard]] int kindOf(QDate date) const { return all().value(date, AbsenceKind::none); }
    [[nodiscard]] const QHash<QDate, int>& all() const;
    /// It is saved with the next save of the context. Throws a StoreError, and changes nothing, if the store cannot be
    /// read.
    void set(QDate date, int kind);

private:
    ModelContext& m_context;
    /// Read when it is needed.
    mutable QHash<QDate, int> m_kinds;
    mutable bool m_isRead = false;
};
