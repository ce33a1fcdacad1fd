// SPDX-License-Identifier: GPL-3.0-or-later
#include "UndoLine.h"

#include "Accessibility.h"
#include "CalendarPage.h"
#include "ChangeText.h"
#include "Clock.h"
#include "DayChange.h"
#include "FootLine.h"
#include "Page.h"
#include "StoreError.h"
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
    if (revert([this] { return m_history.undo(); }, tr("Nothing to undo")))
        showChangedDay();
}

void UndoLine::redo()
{
    if (revert([this] { return m_history.redo(); }, tr("Nothing to redo")))
        showChangedDay();
}

bool UndoLine::revert(const std::function<bool()>& action, const QString& nothing)
{
    try {
        if (action())
            return true;
        showMessage(nothing);
    } catch (const StoreError& error) {
        showMessage(error.description());
    }
    return false;
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
    const auto undoAll = [&] {
        return std::count_if(changes.rbegin(), changes.rend(),
                             [this](const ChangedDays& change) { return m_history.undo(change.group); }) > 0;
    };
    revert(undoAll, tr("Nothing to undo"));
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
