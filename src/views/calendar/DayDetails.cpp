// SPDX-License-Identifier: GPL-3.0-or-later
#include "DayDetails.h"

#include "Accessibility.h"
#include "Clock.h"
#include "CountingRecords.h"
#include "DayHistory.h"
#include "DayMarker.h"
#include "DayNote.h"
#include "DayOffField.h"
#include "DaySwatch.h"
#include "DayTexts.h"
#include "Labels.h"
#include "LinkButton.h"
#include "LongWords.h"
#include "Month.h"
#include "Page.h"
#include "StoreError.h"
#include "TextArea.h"
#include "UndoHistory.h"
#include "WindowSize.h"

#include <QLocale>
#include <QLoggingCategory>
#include <QVBoxLayout>

#include <chrono>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

Q_LOGGING_CATEGORY(logDetails, "pellory.calendar", QtInfoMsg)

// In the usual font, with which it grows.
constexpr int detailsWidth = 360;
constexpr int noteLines = 4;
constexpr auto typingPause = 500ms;
constexpr int statesInView = 4;
constexpr int stateGap = 8;
constexpr int scrollBarRoom = 12;

QWidget* makeColumn(int spacing)
{
    auto* widget = new QWidget;
    auto* rows = new QVBoxLayout(widget);
    rows->setContentsMargins({});
    rows->setSpacing(spacing);
    return widget;
}

QWidget* makeState(const Day& day, const QString& what, const QString& how)
{
    auto* texts = makeColumn(1);
    texts->layout()->addWidget(cutLongWords(labels::text(what))); // the name of a kind of absence
    if (!how.isEmpty())
        texts->layout()->addWidget(labels::dim(how));
    auto* state = new QWidget;
    auto* row = new QHBoxLayout(state);
    row->setContentsMargins({});
    row->setSpacing(10);
    row->addWidget(new DaySwatch(day), 0, Qt::AlignTop);
    row->addWidget(texts, 1);
    return state;
}

void replaceContents(QWidget& holder, QWidget* contents)
{
    if (auto* before = holder.layout()->takeAt(0)) {
        before->widget()->hide();
        before->widget()->deleteLater(); // one of its buttons may have been pressed
        delete before;
    }
    holder.layout()->addWidget(contents);
    contents->show();
}

void focusFirst(const QWidget& holder)
{
    // Those that are about to be deleted are not in the layout any more.
    if (auto* button = holder.layout()->itemAt(0)->widget()->findChild<LinkButton*>())
        button->setFocus(Qt::TabFocusReason);
}

} // namespace

DayDetails::DayDetails(const CalendarParts& parts, UndoHistory& history, Place place, QWidget* cell)
    : Popover(cell, Side::Beside)
    , m_marker(parts.marker)
    , m_counting(parts.counting)
    , m_history(history)
    , m_clock(parts.clock)
    , m_place(std::move(place))
    , m_date(m_place.month->dateOf(day().id))
    , m_current(makeColumn(0))
    , m_earlier(makeColumn(0))
{
    auto* title = labels::strong(QLocale().toString(m_date, QLocale::LongFormat));
    title->setFixedWidth(contentsWidth());
    setAccessibleName(title->text());
    column().setSpacing(10);
    column().addWidget(title);
    column().addWidget(m_current);
    addDayOff();
    addNote();
    column().addWidget(m_earlier);
    showStates();
    connect(&m_marker, &DayMarker::changed, this, [this](const ChangedDays& days) {
        if (days.dates.contains(m_date))
            followStates();
    });
}

DayDetails::~DayDetails()
{
    saveNote();
}

int DayDetails::contentsWidth() const
{
    return qMin(fonts::grown(detailsWidth, font()), widestContents());
}

Day DayDetails::day() const
{
    return m_place.month->days.value().at(m_place.index);
}

void DayDetails::addDayOff()
{
    if (m_counting.counting().value().dayOff(m_date) == nullptr)
        return;
    column().addWidget(labels::dim(tr("Day Off")));
    column().addWidget(new DayOffField(m_counting, m_date));
}

void DayDetails::addNote()
{
    try {
        m_note = m_marker.notes().noteOf(m_date);
    } catch (const StoreError& error) {
        qCWarning(logDetails, "A note cannot be read: %s", error.what());
        column().addWidget(labels::error(tr("The note of this day cannot be read.")));
        return;
    }
    auto* name = labels::dim(tr("Note"));
    m_noteField = new TextArea(noteLines);
    m_noteField->setAccessibleName(name->text());
    m_noteField->setPlainText(m_note->text);
    m_noteField->moveCursor(QTextCursor::End);
    column().addWidget(name);
    column().addWidget(m_noteField);
    m_pause.setSingleShot(true);
    m_pause.setInterval(typingPause);
    connect(m_noteField, &TextArea::textChanged, &m_pause, qOverload<>(&QTimer::start));
    connect(m_noteField, &TextArea::left, this, &DayDetails::saveNote);
    connect(&m_pause, &QTimer::timeout, this, &DayDetails::saveNote);
}

void DayDetails::showStates()
{
    QList<PastState> states = DayHistory::states(m_history.changesOf(m_date));
    QString how;
    if (!states.isEmpty() && isCurrent(states.first()))
        how = DayHistory::describe(states.takeFirst(), m_clock.today());
    else if (states.isEmpty() && day().state != DayState::UNKNOWN)
        how = tr("Set before changes were recorded");
    const DayTexts texts(m_counting);
    const QString state = texts.state(m_date, day().state);
    setAccessibleDescription(how.isEmpty() ? state : tr("%1. %2", "state, and who set it when").arg(state, how));
    replaceContents(*m_current, makeState(texts.colored(day(), m_date), state, how));
    m_earlier->setVisible(!states.isEmpty());
    if (!states.isEmpty())
        replaceContents(*m_earlier, makeEarlierStates(states));
}

void DayDetails::followStates()
{
    const bool hadFocus = m_earlier->isAncestorOf(focusWidget());
    showStates();
    fitToContents();
    if (hadFocus)
        focusFirst(*m_earlier);
    announce(*this, accessibleDescription());
}

QWidget* DayDetails::makeEarlierStates(const QList<PastState>& states)
{
    auto* list = makeColumn(stateGap);
    int height = 0;
    for (const PastState& state : states) {
        QWidget* row = makeEarlierState(state);
        list->layout()->addWidget(row);
        const int rowHeight = row->heightForWidth(contentsWidth() - scrollBarRoom) + stateGap;
        // Of a longer list, half a row shows that there is more.
        if (list->layout()->count() <= statesInView)
            height += rowHeight;
        else if (list->layout()->count() == statesInView + 1)
            height += rowHeight / 2;
    }
    list->layout()->setContentsMargins(0, 0, scrollBarRoom, stateGap);
    auto* page = new Page(list);
    list->setAutoFillBackground(false); // which the page has turned on
    page->viewport()->setAutoFillBackground(false);
    page->setFixedHeight(height);
    auto* whole = makeColumn(stateGap);
    whole->layout()->addWidget(labels::dim(tr("Earlier")));
    whole->layout()->addWidget(page);
    return whole;
}

QWidget* DayDetails::makeEarlierState(const PastState& state)
{
    Day then = day();
    then.state = state.state;
    const QString how = DayHistory::describe(state, m_clock.today());
    const QString name = m_marker.absences().describe(state.state, state.absenceKind);
    QWidget* row = makeState(DayTexts(m_counting).colored(then, m_date), name, how);
    if (isCurrent(state))
        return row;
    auto* button = new LinkButton(tr("Set Back"));
    button->setAccessibleName(tr("Set back to %1. %2", "state, and who set it when").arg(name, how));
    connect(button, &QAbstractButton::clicked, this, [this, state] { setBack(state); });
    row->layout()->addWidget(button);
    return row;
}

bool DayDetails::isCurrent(const PastState& state) const
{
    return m_marker.markOn(*m_place.month, m_date) == DayMark{m_date, state.state, state.absenceKind};
}

// As an undo of today's check, so that the next check does not set the state again.
void DayDetails::setBack(const PastState& state)
{
    if (m_date == m_clock.today() && m_history.undoCheck(m_date, state.state))
        return;
    if (state.absenceKind != AbsenceKind::none)
        m_marker.markAbsence(*m_place.month, m_place.index, state.absenceKind);
    else
        m_marker.mark(*m_place.month, m_place.index, state.state, MarkedBy::Click);
}

void DayDetails::saveNote()
{
    m_pause.stop();
    if (m_note)
        m_marker.notes().write(m_note, m_noteField->toPlainText());
}
