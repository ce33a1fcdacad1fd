// SPDX-License-Identifier: GPL-3.0-or-later
#include "OpenDaysReview.h"

#include "CalendarView.h"
#include "DayEditor.h"
#include "Month.h"
#include "StatusPicker.h"

#include <algorithm>

OpenDaysReview::OpenDaysReview(DayMarker& marker, CalendarView& calendar)
    : QObject(&calendar)
    , m_marker(marker)
    , m_calendar(calendar)
{
}

void OpenDaysReview::start(const QList<QDate>& days)
{
    m_days = days;
    m_next = 0;
    showNext();
}

void OpenDaysReview::showNext()
{
    while (m_next < m_days.size() && !isOpen(m_days.at(m_next)))
        ++m_next;
    if (m_next == m_days.size())
        return;
    const QDate day = m_days.at(m_next++);
    m_calendar.focusDay(day.day());
    const QWidget& cell = *m_calendar.window()->focusWidget();
    auto* picker = new StatusPicker(DayState::UNKNOWN, &m_calendar);
    picker->setAccessibleName(cell.accessibleName());
    connect(picker, &StatusPicker::chosen, this, [this, day](DayState state) { markDay(day, state); });
    addEntries(*picker);
    picker->popUpBeside({cell.mapToGlobal(QPoint()), cell.size()});
}

void OpenDaysReview::addEntries(StatusPicker& picker)
{
    picker.addSeparator();
    // Another menu can open once this one is closed.
    connect(picker.addEntry(tr("Skip This Day")), &QAction::triggered, this, &OpenDaysReview::showNext,
            Qt::QueuedConnection);
    const auto count = static_cast<int>(std::ranges::count_if(m_days, [this](QDate day) { return isOpen(day); }));
    if (count == 1)
        return;
    picker.addSeparator();
    for (const DayState state : {DayState::IN_OFFICE, DayState::OUT_OF_OFFICE, DayState::VACATION_DAY}) {
        //: The number of days, and a state.
        QAction* entry = picker.addEntry(tr("Set All %n to %1", nullptr, count).arg(description(state)));
        connect(entry, &QAction::triggered, this, [this, state] { markAll(state); });
    }
}

void OpenDaysReview::markDay(QDate day, DayState state)
{
    Month& month = *m_calendar.month();
    m_marker.mark(month, *month.indexOf(day.day()), state, MarkedBy::Menu);
    QMetaObject::invokeMethod(this, &OpenDaysReview::showNext, Qt::QueuedConnection);
}

void OpenDaysReview::markAll(DayState state)
{
    QList<QDate> days = m_days;
    days.removeIf([this](QDate day) { return !isOpen(day); });
    DayEditor(m_marker).setDays(days, state);
}

bool OpenDaysReview::isOpen(QDate day) const
{
    const Month& month = *m_calendar.month();
    return day.year() == month.year && day.month() == month.month &&
           DayMarker::stateOf(month, *month.indexOf(day.day())) == DayState::UNKNOWN;
}
