// SPDX-License-Identifier: GPL-3.0-or-later
#include "UndoLine.h"

#include "Accessibility.h"
#include "CalendarPage.h"
#include "ChangeText.h"
#include "Clock.h"
#include "DayChange.h"
#include "FootLine.h"
#include "Page.h"
#include "UndoHistory.h"

#include <QApplication>
#include <QStackedWidget>

#include <algorithm>
#include <utility>

UndoLine::UndoLine(DayMarker& marker, UndoHistory& history, const Clock& clock, QStackedWidget& pages)
    : QObject(&pages)
    , m_marker(marker)
    , m_history(history)
    , m_clock(clock)
    , m_pages(pages)
{
    connect(&marker, &DayMarker::changed, this, &UndoLine::note);
    connect(&pages, &QStackedWidget::currentChanged, this, &UndoLine::makeRoom);
}

void UndoLine::undo()
{
    if (m_history.undo())
        showChangedDay();
    else
        showMessage(tr("Nothing to undo"));
}

void UndoLine::redo()
{
    if (m_history.redo())
        showChangedDay();
    else
        showMessage(tr("Nothing to redo"));
}

void UndoLine::note(const ChangedDays& change)
{
    if (m_isShown) {
        const bool isContinued = !m_changes.isEmpty() && m_changes.last().group == change.group;
        m_changes.clear();
        if (isContinued && isAsBefore(change)) {
            line().dismiss();
            return;
        }
        m_isShown = false;
        // A check may mark two days, and the day with the focus is said first.
        QMetaObject::invokeMethod(this, &UndoLine::showChanges, Qt::QueuedConnection);
    }
    m_changes.append(change);
}

void UndoLine::showChanges()
{
    if (std::exchange(m_isShown, true)) // a later key has found nothing, which is shown
        return;
    const QString text = changeText(m_changes, m_clock.today(), m_marker.absences());
    line().showText(text, m_changes.last().by == ChangedBy::Undo ? tr("Redo") : tr("Undo"));
    if (!isSaidByDay())
        announce(line(), text);
}

void UndoLine::showMessage(const QString& text)
{
    m_changes.clear();
    m_isShown = true;
    line().showText(text);
    announce(line(), text);
}

void UndoLine::showChangedDay()
{
    QList<QDate> days;
    for (const ChangedDays& change : m_changes)
        days += change.dates;
    if (!days.isEmpty() && std::ranges::none_of(days, [this](QDate day) { return page().isShown(day); }))
        page().showDay(days.first(), Qt::ShortcutFocusReason);
}

void UndoLine::revertShown()
{
    // The second click of a double click would take back the first.
    if (m_sinceRevert.isValid() && m_sinceRevert.elapsed() < QApplication::doubleClickInterval())
        return;
    m_sinceRevert.start();
    const auto changes = m_changes; // reverting notes others
    bool isReverted = false;
    std::for_each(changes.rbegin(), changes.rend(),
                  [&](const ChangedDays& change) { isReverted |= m_history.undo(change.group); });
    if (!isReverted)
        showMessage(tr("Nothing to undo"));
}

void UndoLine::makeRoom()
{
    for (auto* each : m_pages.findChildren<Page*>())
        each->setFootRoom(m_line != nullptr ? m_line->footRoom() : 0);
}

bool UndoLine::isAsBefore(const ChangedDays& change) const
{
    const std::pair after(change.state, change.absenceKind);
    auto before = after;
    for (const DayChange& each : m_history.changesOf(change.dates.first())) {
        if (each.group == change.group)
            before = {each.before, each.absenceBefore}; // at last those of the first change
    }
    return before == after;
}

bool UndoLine::isSaidByDay() const
{
    return m_changes.size() == 1 && m_changes.first().dates == QList{page().focusedDate()};
}

CalendarPage& UndoLine::page() const
{
    return *m_pages.currentWidget()->findChild<CalendarPage*>();
}

FootLine& UndoLine::line()
{
    if (m_line == nullptr) {
        m_line = new FootLine(m_pages);
        connect(m_line, &FootLine::linkPressed, this, &UndoLine::revertShown);
        connect(m_line, &FootLine::footRoomChanged, this, &UndoLine::makeRoom);
        connect(m_line, &FootLine::focusLost, this, [this] { page().focusCurrentDay(Qt::TabFocusReason); });
    }
    return *m_line;
}
