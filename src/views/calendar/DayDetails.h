// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CalendarParts.h"
#include "Popover.h"

#include <QDate>
#include <QTimer>

#include <memory>

class DayNote;
class Month;
class QLabel;
class TextArea;
class UndoHistory;
struct Day;
struct PastState;

/// What is known of a day: its state and who set it, its earlier states, and the person's note, which can be edited.
class DayDetails : public Popover {
    Q_OBJECT

public:
    /// A cell of a stored month.
    struct Place {
        std::shared_ptr<Month> month;
        qsizetype index = 0;
    };

    DayDetails(const CalendarParts& parts, UndoHistory& history, Place place, QWidget* cell);
    /// Saves the note.
    ~DayDetails() override;

private:
    [[nodiscard]] int contentsWidth() const;
    [[nodiscard]] Day day() const;
    void addDayOff();
    void addNote();
    void showStates();
    void followStates();
    [[nodiscard]] QWidget* makeEarlierStates(const QList<PastState>& states);
    [[nodiscard]] QWidget* makeEarlierState(const PastState& state);
    [[nodiscard]] bool isCurrent(const PastState& state) const;
    void setBack(const PastState& state);
    void saveNote();

    DayMarker& m_marker;
    CountingRecords& m_counting;
    UndoHistory& m_history;
    const Clock& m_clock;
    Place m_place;
    QDate m_date;
    QWidget* m_current;
    QWidget* m_earlier;
    /// Without one if it cannot be read.
    std::shared_ptr<DayNote> m_note;
    TextArea* m_noteField = nullptr;
    QTimer m_pause;
};
