// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DayState.h"

#include <QList>
#include <QObject>

class Clock;
class DayMarker;
class QAction;
class QMenu;

/// Entries of a menu that set the state of today, which is ticked.
class TodayEntries : public QObject {
    Q_OBJECT

public:
    TodayEntries(QMenu& menu, DayMarker& marker, const Clock& clock);

Q_SIGNALS:
    /// Today cannot be marked, because the store cannot be read.
    void failed();

private:
    void set(DayState state);
    void refresh();

    DayMarker& m_marker;
    const Clock& m_clock;
    DayState m_current = DayState::UNKNOWN;
    /// In the order of the states.
    QList<QAction*> m_entries;
};
