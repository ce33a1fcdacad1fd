// SPDX-License-Identifier: GPL-3.0-or-later
#include "DaySelection.h"

#include "Accessibility.h"
#include "CalendarPage.h"
#include "CalendarView.h"
#include "CommandClickableButton.h"
#include "CountingRecords.h"
#include "RangeMenu.h"
#include "ReturnKey.h"
#include "SelectedDays.h"
#include "StateGestures.h"

#include <QApplication>
#include <QKeyEvent>
#include <QScopedValueRollback>

#include <algorithm>
#include <compare>
#include <utility>

namespace {

struct Distance {
    int down = 0;
    int sideways = 0;

    auto operator<=>(const Distance&) const = default;
};

// From a widget to a place on the screen, 0 inside of it.
Distance distanceFrom(const QWidget& widget, const QPoint& place)
{
    const QRect area(widget.mapToGlobal(QPoint()), widget.size());
    const auto beyond = [](int low, int value, int high) { return std::max({low - value, 0, value - high}); };
    return {beyond(area.top(), place.y(), area.bottom()), beyond(area.left(), place.x(), area.right())};
}

} // namespace

DaySelection::DaySelection(const CalendarParts& parts, CalendarPage& page)
    : m_parts(parts)
    , m_editor(parts.marker)
    , m_page(page)
    , m_scroll(page)
{
    connect(&m_scroll, &EdgeScroll::scrolled, this, [this] { dragTo(dateNear(m_drag.pointer)); });
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget* /*before*/, const QWidget* now) { followFocus(now); });
}

void DaySelection::watch(CalendarView& calendar)
{
    m_calendars.push_back(&calendar);
    m_scroll.setEnds(*m_calendars.front(), calendar);
    for (CommandClickableButton* cell : calendar.cells())
        cell->installEventFilter(this);
}

void DaySelection::followTurn()
{
    if (!m_isExtending)
        drop();
}

DaySpan DaySelection::span() const
{
    return isEmpty() ? DaySpan() : DaySpan{std::min(m_anchor, m_end), std::max(m_anchor, m_end)};
}

void DaySelection::select(QDate anchor, QDate end)
{
    m_anchor = anchor;
    m_end = end;
    for (CalendarView* calendar : m_calendars)
        calendar->setSelected(span());
}

void DaySelection::drop()
{
    m_drag = {};
    m_scroll.stop();
    m_menuKey = 0;
    select({}, {});
}

void DaySelection::extendTo(QDate date)
{
    const QDate anchor = isEmpty() ? m_page.focusedDate() : m_anchor;
    const QScopedValueRollback extending(m_isExtending, true);
    m_page.showDay(date);
    if (m_page.focusedDate() != date) // outside the calendar
        return;
    select(anchor, date);
    announce(m_page, isEmpty() ? tr("No days selected") : SelectedDays(span(), m_parts.counting.counting()).spoken());
}

void DaySelection::selectMonth()
{
    const QDate day = m_page.focusedDate();
    const QDate first(day.year(), day.month(), 1);
    select(first, first.addDays(first.daysInMonth() - 1));
    announce(m_page, SelectedDays(span(), m_parts.counting.counting()).spoken());
}

void DaySelection::openMenu(QWidget& cell)
{
    const SelectedDays days(span(), m_parts.counting.counting());
    // Sets the days that were selected, even if the page has turned by then.
    const auto set = [this, dates = days.dates()](DayState state, int absenceKind) {
        drop();
        m_editor.setDays(dates, state, absenceKind);
    };
    m_scroll.stop(); // if a key opens the menu of a drag
    auto* menu = new RangeMenu(m_parts, days, set, &cell);
    connect(menu, &RangeMenu::popoverRequested, this, &DaySelection::popoverRequested);
    menu->popUpBeside({cell.mapToGlobal(QPoint()), cell.size()});
}

bool DaySelection::eventFilter(QObject* watched, QEvent* event)
{
    auto& cell = static_cast<CommandClickableButton&>(*watched);
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        startDrag(dateOf(cell), static_cast<QMouseEvent&>(*event));
        return false;
    case QEvent::MouseMove:
        continueDrag(cell, static_cast<QMouseEvent&>(*event));
        return false;
    case QEvent::MouseButtonRelease:
        endDrag(static_cast<QMouseEvent&>(*event));
        return false;
    case QEvent::ContextMenu:
        return handleMenuRequest(cell);
    case QEvent::KeyPress:
        return handleKey(cell, static_cast<QKeyEvent&>(*event));
    case QEvent::KeyRelease:
        return handleRelease(cell, static_cast<QKeyEvent&>(*event));
    default:
        return false;
    }
}

void DaySelection::startDrag(QDate date, const QMouseEvent& event)
{
    m_drag = {};
    m_scroll.stop();
    if (event.button() != Qt::LeftButton) // the right one may open the menu of the selection
        return;
    drop();
    m_drag = {date, event.globalPosition().toPoint()};
}

void DaySelection::continueDrag(CommandClickableButton& pressed, const QMouseEvent& event)
{
    if (!m_drag.from.isValid())
        return;
    if ((event.buttons() & Qt::LeftButton) == 0) // the release went elsewhere
        return drop();
    const QPoint place = event.globalPosition().toPoint();
    const QDate date = dateNear(place);
    if (!m_drag.isMoving) {
        const int way = (place - m_drag.place).manhattanLength();
        if (date == m_drag.from || way < QApplication::startDragDistance())
            return;
        m_drag.isMoving = true;
        pressed.resetHover();
    }
    m_drag.pointer = place;
    m_scroll.follow(place);
    dragTo(date);
}

void DaySelection::dragTo(QDate date)
{
    if (date == m_end)
        return;
    // Keys go on from here.
    m_page.showDay(date, Qt::MouseFocusReason);
    select(m_drag.from, date);
}

void DaySelection::endDrag(const QMouseEvent& event)
{
    m_scroll.stop();
    if (event.button() != Qt::LeftButton || !std::exchange(m_drag, {}).isMoving || isEmpty())
        return;
    openMenu(*m_page.focusWidget());
}

bool DaySelection::handleMenuRequest(CommandClickableButton& cell)
{
    if (span().contains(dateOf(cell))) {
        cell.setFocus(Qt::OtherFocusReason);
        cell.resetHover(); // the menu takes the pointer
        openMenu(cell);
        return true;
    }
    drop();
    return false;
}

bool DaySelection::handleKey(CommandClickableButton& cell, const QKeyEvent& event)
{
    const Qt::KeyboardModifiers held = event.modifiers() & ~Qt::KeypadModifier;
    const QDate target = targetOf(event.key(), isEmpty() ? dateOf(cell) : m_end);
    if (target.isValid() && held == Qt::ShiftModifier) {
        extendTo(target);
        return true;
    }
    if (event.matches(QKeySequence::SelectAll)) {
        selectMonth();
        return true;
    }
    if (event.key() == Qt::Key_Escape && (!isEmpty() || m_drag.isMoving)) {
        drop();
        announce(m_page, tr("No days selected"));
        return true;
    }
    return !isEmpty() && handleKeyOfSelection(cell, event);
}

bool DaySelection::handleKeyOfSelection(CommandClickableButton& cell, const QKeyEvent& event)
{
    const Qt::KeyboardModifiers held = event.modifiers() & ~Qt::KeypadModifier;
    if (event.key() == Qt::Key_F10 && held == Qt::ShiftModifier)
        return handleMenuRequest(cell);
    if (const auto state = stateForKey(event)) {
        m_editor.setDays(SelectedDays(span(), m_parts.counting.counting()).dates(), *state);
        return true;
    }
    const bool isSpace = event.key() == Qt::Key_Space;
    if (held == Qt::NoModifier && (isSpace || isReturn(event))) {
        m_menuKey = event.key(); // a menu that opened now would take its repetitions
        return true;
    }
    if (isSpace || targetOf(event.key(), m_end).isValid())
        drop();
    return false;
}

bool DaySelection::handleRelease(CommandClickableButton& cell, const QKeyEvent& event)
{
    if (event.key() != m_menuKey || event.isAutoRepeat())
        return false;
    m_menuKey = 0;
    openMenu(cell);
    return true;
}

QDate DaySelection::targetOf(int key, QDate from) const
{
    const int forward = m_page.layoutDirection() == Qt::LeftToRight ? 1 : -1;
    switch (key) {
    case Qt::Key_Left:
        return from.addDays(-forward);
    case Qt::Key_Right:
        return from.addDays(forward);
    case Qt::Key_Up:
        return from.addDays(-7);
    case Qt::Key_Down:
        return from.addDays(7);
    case Qt::Key_Home:
        return {from.year(), from.month(), 1};
    case Qt::Key_End:
        return {from.year(), from.month(), from.daysInMonth()};
    case Qt::Key_PageUp:
        return from.addMonths(-1);
    case Qt::Key_PageDown:
        return from.addMonths(1);
    default:
        return {};
    }
}

QDate DaySelection::dateNear(const QPoint& place) const
{
    const CalendarView* calendar = *std::ranges::min_element(m_calendars, {}, [&](const CalendarView* each) {
        const Distance distance = distanceFrom(*each, place);
        return distance.down + distance.sideways;
    });
    const auto& cells = calendar->cells();
    // The nearest row comes first, as where text is selected. Cells that show no day are passed over.
    const auto* cell = *std::ranges::min_element(cells, {}, [&](const CommandClickableButton* each) {
        return std::pair(each->isHidden(), distanceFrom(*each, place));
    });
    return dateOf(*cell);
}

QDate DaySelection::dateOf(const CommandClickableButton& cell)
{
    return static_cast<CalendarView*>(cell.parentWidget())->dateOf(cell);
}

void DaySelection::followFocus(const QWidget* focused)
{
    if (isEmpty() || focused == nullptr || !m_page.window()->isAncestorOf(focused))
        return;
    if (std::ranges::none_of(m_calendars, [&](const CalendarView* each) { return each->isAncestorOf(focused); }))
        drop();
}
