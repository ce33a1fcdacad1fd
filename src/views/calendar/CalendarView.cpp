// SPDX-License-Identifier: GPL-3.0-or-later
#include "CalendarView.h"

#include "Accessibility.h"
#include "AttendanceStatistics.h"
#include "Clock.h"
#include "CommandClickableButton.h"
#include "CountingRecords.h"
#include "DayMenu.h"
#include "Follow.h"
#include "ModelContext.h"
#include "Month.h"
#include "RestingPointer.h"
#include "ReturnKey.h"
#include "StateGestures.h"
#include "Theme.h"
#include "ViewSettings.h"
#include "WeekColumn.h"

#include <QEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace {

constexpr int columns = GridOrder::columns;
constexpr qreal highlightRadius = 12.0;
constexpr float highlightOpacity = 0.1F;

} // namespace

CalendarView::CalendarView(const CalendarParts& parts, bool highlighted, QWidget* parent)
    : QWidget(parent)
    , m_parts(parts)
    , m_editor(parts.marker)
    , m_notes(parts.marker.notes())
    , m_highlighted(highlighted)
    , m_grid(new QGridLayout(this))
    , m_header(*m_grid)
{
    setAccessibleRole(*this, QAccessible::Grouping);
    new RestingPointer(this);
    m_grid->setContentsMargins({});
    m_grid->setSpacing(0); // a click between two cells would be lost
    addCells();
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(&parts.clock, &Clock::dayChanged, this, &CalendarView::refresh);
    connect(&parts.counting, &CountingRecords::changed, this, &CalendarView::refresh);
    connect(&m_notes, &MonthNotes::changed, this, &CalendarView::refresh);
    follow(parts.viewSettings.firstDayOfWeek, this, [this] { followWeekStart(); });
    follow(parts.viewSettings.showWeekNumbers, this, [this] { followWeekNumbers(); });
}

CalendarView::~CalendarView() = default;

void CalendarView::addCells()
{
    m_cells.reserve(GridOrder::places);
    for (int place = 0; place < GridOrder::places; ++place) {
        m_cells.push_back(makeCell(place));
        m_grid->addWidget(m_cells.back(), CalendarHeader::rows + place / columns, place % columns);
    }
}

CommandClickableButton* CalendarView::makeCell(qsizetype place)
{
    const auto operation = [this, place](Operation change) {
        return [this, place, change] { (m_editor.*change)(*m_month, m_order.indexAt(place)); };
    };
    auto* cell = new CommandClickableButton({operation(&DayEditor::cycleDayState), operation(&DayEditor::resetDayState),
                                             operation(&DayEditor::toggleWillBeInOffice),
                                             operation(&DayEditor::toggleVacationDay)},
                                            m_parts.viewSettings, this);
    QSizePolicy policy = cell->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    cell->setSizePolicy(policy);
    cell->setFocusPolicy(Qt::ClickFocus);
    cell->setVisible(false);
    cell->installEventFilter(this);
    connect(cell, &CommandClickableButton::menuRequested, this, [this, place] { showPicker(place); });
    return cell;
}

void CalendarView::showPicker(qsizetype place)
{
    auto& cell = *m_cells[static_cast<std::size_t>(place)];
    const qsizetype index = m_order.indexAt(place);
    auto* menu = new DayMenu(m_parts, m_month, index, &cell);
    // Marks the month that was clicked, even if another is shown by then.
    connect(menu, &StatusPicker::chosen, this,
            [this, month = m_month, index](DayState state) { m_editor.setDayState(*month, index, state); });
    connect(menu, &DayMenu::popoverRequested, this, &CalendarView::popoverRequested);
    connect(menu, &DayMenu::detailsRequested, this,
            [this, month = m_month, index, &cell] { Q_EMIT detailsRequested(month, index, &cell); });
    menu->popUpBeside({cell.mapToGlobal(QPoint()), cell.size()});
}

// A month that is not stored is a sample.
bool CalendarView::hasDetails() const
{
    return m_parts.marker.context().contains(*m_month);
}

void CalendarView::setMonth(const std::shared_ptr<Month>& month)
{
    m_month = month;
    m_monthFollowers = std::make_unique<QObject>();
    onChange(month->days, m_monthFollowers.get(), [this] { refresh(); });
    onChange(month->name, m_monthFollowers.get(), [this] { refresh(); });
    for (CommandClickableButton* cell : m_cells)
        cell->resetHover();
    if (hasDetails())
        m_notes.read(*month);
    m_order = {m_parts.viewSettings.weekStart(), month->dateOf(1)};
    refresh();
    const QDate today = m_parts.clock.today();
    const bool isThisMonth = today.year() == month->year && today.month() == month->month;
    setTabStop(&cellOf(isThisMonth ? today.day() : 1));
}

void CalendarView::followWeekStart()
{
    const Qt::DayOfWeek start = m_parts.viewSettings.weekStart();
    m_header.setWeekStart(start);
    if (!m_month)
        return;
    const int focused = focusedDay();
    const int tabStop = dayOf(m_tabStop);
    m_order = {start, m_month->dateOf(1)};
    refresh();
    setTabStop(&cellOf(tabStop));
    if (focused != 0)
        focusDay(focused, Qt::OtherFocusReason);
}

void CalendarView::followWeekNumbers()
{
    m_weeks.reset();
    if (!m_parts.viewSettings.showWeekNumbers)
        return;
    m_weeks = std::make_unique<WeekColumn>(m_parts, *m_grid, CalendarHeader::rows);
    connect(m_weeks.get(), &WeekColumn::changed, this, &CalendarView::refreshWeeks);
    refreshWeeks();
}

CommandClickableButton& CalendarView::cellOf(int dayOfMonth) const
{
    return *m_cells[static_cast<std::size_t>(m_order.placeOf(*m_month->indexOf(dayOfMonth)))];
}

int CalendarView::dayOf(const CommandClickableButton* cell) const
{
    const qsizetype place = std::ranges::find(m_cells, cell) - m_cells.begin();
    return static_cast<int>(m_month->days.value().value(m_order.indexAt(place)).id);
}

void CalendarView::focusDay(int dayOfMonth, Qt::FocusReason reason)
{
    cellOf(std::min<int>(dayOfMonth, m_month->daysInMonth)).setFocus(reason);
}

void CalendarView::focusCurrentDay(Qt::FocusReason reason)
{
    m_tabStop->setFocus(reason);
}

void CalendarView::setSelected(const DaySpan& days)
{
    if (std::exchange(m_selected, days) != days)
        refresh();
}

QDate CalendarView::dateOf(const CommandClickableButton& cell) const
{
    return m_month->dateOf(dayOf(&cell));
}

void CalendarView::refresh()
{
    if (!m_month)
        return;
    const QDate today = m_parts.clock.today();
    setAccessibleName(calendarTitle(*m_month, today));
    m_header.setName(accessibleName());
    const DayTexts texts = hasDetails() ? DayTexts(m_parts.counting) : DayTexts();
    m_header.setWorkdays(workdayCount(*m_month, texts.counting()));
    for (int place = 0; place < GridOrder::places; ++place)
        refreshCell(place, texts, today);
    refreshWeeks();
}

void CalendarView::refreshWeeks()
{
    if (m_weeks && m_month)
        m_weeks->show(*m_month, m_order);
}

void CalendarView::refreshCell(qsizetype place, const DayTexts& texts, QDate today)
{
    CommandClickableButton& cell = *m_cells[static_cast<std::size_t>(place)];
    const QDate date = m_order.dateAt(place);
    const bool isInMonth = date.month() == m_month->month;
    cell.setVisible(isInMonth);
    cell.setRinged(isInMonth && date == today);
    if (!isInMonth)
        return;
    const Day& day = m_month->days.value().at(m_order.indexAt(place));
    cell.setText(QString::number(day.id));
    cell.setTint(dayColor(themeFor(palette()), texts.colored(day, date)));
    cell.setState(day.state);
    cell.setSelected(m_order.runAt(place, m_selected));
    cell.setDayOff(texts.counting().dayOff(date) != nullptr);
    cell.setTooltipText(texts.onHover(date, day.state));
    cell.setNote(m_notes.of(date));
    const QString spoken = texts.spoken(date, day.state);
    cell.setSpokenName(m_notes.of(date).isEmpty() ? spoken : tr("%1, has a note", "date and state").arg(spoken));
}

int CalendarView::focusedDay() const
{
    const auto focused = std::ranges::find_if(m_cells, [](const auto* cell) { return cell->hasFocus(); });
    return focused == m_cells.end() ? 0 : dayOf(*focused);
}

void CalendarView::moveFocus(int days)
{
    const int from = focusedDay();
    if (from == 0)
        return;
    const qint64 target = from + days;
    if (target >= 1 && target <= m_month->daysInMonth)
        focusDay(static_cast<int>(target));
    else
        Q_EMIT dayRequested(m_month->dateOf(target));
}

void CalendarView::setTabStop(CommandClickableButton* cell)
{
    if (m_tabStop != nullptr)
        m_tabStop->setFocusPolicy(Qt::ClickFocus);
    m_tabStop = cell;
    m_tabStop->setFocusPolicy(Qt::StrongFocus);
}

void CalendarView::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange)
        refresh();
    QWidget::changeEvent(event);
}

void CalendarView::keyPressEvent(QKeyEvent* event)
{
    const int forward = layoutDirection() == Qt::LeftToRight ? 1 : -1;
    switch (event->key()) {
    case Qt::Key_Left:
        return moveFocus(-forward);
    case Qt::Key_Right:
        return moveFocus(forward);
    case Qt::Key_Up:
        return moveFocus(-columns);
    case Qt::Key_Down:
        return moveFocus(columns);
    case Qt::Key_Home:
        return focusDay(1);
    case Qt::Key_End:
        return focusDay(m_month->daysInMonth);
    default:
        break;
    }
    if (focusedDay() == 0 || !handleDayKey(*event))
        QWidget::keyPressEvent(event);
}

bool CalendarView::handleDayKey(const QKeyEvent& event)
{
    const qsizetype index = *m_month->indexOf(focusedDay());
    if (const auto state = stateForKey(event)) {
        m_editor.setDayState(*m_month, index, *state);
        return true;
    }
    const bool asksForDetails = isReturn(event) && (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (!asksForDetails || !hasDetails())
        return false;
    Q_EMIT detailsRequested(m_month, index, &cellOf(focusedDay()));
    return true;
}

void CalendarView::paintEvent(QPaintEvent* /*event*/)
{
    if (!m_highlighted)
        return;
    QColor color = themeFor(palette()).unknown;
    color.setAlphaF(highlightOpacity);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(rect(), highlightRadius, highlightRadius);
}

bool CalendarView::eventFilter(QObject* watched, QEvent* event)
{
    // Tab enters the grid at the day that had the focus last, and leaves it from any day.
    if (event->type() == QEvent::FocusIn)
        setTabStop(static_cast<CommandClickableButton*>(watched));
    return QWidget::eventFilter(watched, event);
}
