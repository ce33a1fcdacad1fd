// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

class ModelContext;
class Month;
enum class DayState;

/// Who marks a day.
enum class MarkedBy {
    /// A click or a key: any day. It is on disk when mark() returns; a failed save keeps it in memory for the next one.
    Click,
    /// The menu of states: any day. It does not touch `isWorkday`, and is saved at the end of the turn.
    Menu,
    /// The automatic check: only unknown and planned days. It is saved at the end of the turn.
    Check
};

/// The only class that changes the days of a stored month. `index` is the day's place in the grid of its month, 0 to
/// 37; any other stops the program.
class DayMarker {
public:
    explicit DayMarker(ModelContext& context)
        : m_context(context)
    {
    }

    [[nodiscard]] static DayState stateOf(const Month& month, qsizetype index);

    /// Returns whether the day was marked.
    bool mark(Month& month, qsizetype index, DayState state, MarkedBy by);

private:
    ModelContext& m_context;
};
