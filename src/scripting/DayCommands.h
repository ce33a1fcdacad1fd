// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "AttendanceStatus.h"

#include <QCoreApplication>
#include <QMap>

#include <functional>

class UndoHistory;

/// The states of days by their dates, as they are written: "2026-11-20" and "IN_OFFICE".
using WrittenMarks = QMap<QString, QString>;

/// What scripts can do with the days of an open store. All operations throw a CommandError if they fail.
class DayCommands {
    Q_DECLARE_TR_FUNCTIONS(DayCommands)

public:
    struct Parts {
        DayMarker& marker;
        UndoHistory& history;
        const CountingRecords& counting;
        const AppSettings& settings;
        const Clock& clock;
        std::function<Qt::DayOfWeek()> weekStart;
    };

    explicit DayCommands(Parts parts)
        : m_parts(std::move(parts))
    {
    }

    /// Throws a CommandError unless every date and state can be read.
    static void verify(const WrittenMarks& marks);

    [[nodiscard]] QVariantMap status() const;
    /// Marks days as by hand, as one undo step. A day that is in the state already keeps its kind of absence.
    void mark(const WrittenMarks& marks);
    void undo();
    /// All days as CSV.
    [[nodiscard]] QByteArray csv() const;

private:
    template <class Action> auto reading(Action action) const -> decltype(action());
    void requireSaved() const;

    Parts m_parts;
};
