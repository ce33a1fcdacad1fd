// SPDX-License-Identifier: GPL-3.0-or-later
#include "LegendView.h"

#include "CalendarPage.h"
#include "Day.h"
#include "DaySwatch.h"
#include "KeyCap.h"
#include "Labels.h"
#include "SpokenGroup.h"
#include "StateGestures.h"
#include "Switch.h"
#include "SymbolView.h"
#include "ViewSettings.h"

#include <QGridLayout>
#include <QKeySequence>
#include <QVBoxLayout>

namespace {

constexpr int swatchColumn = 0;
constexpr int keyColumn = 1;
constexpr int textColumn = 2;
constexpr int numberColumn = 3;

QString keyText(DayState state)
{
    return QKeySequence(keyFor(state)).toString();
}

QString spokenText(const Day& day, const QString& text)
{
    if (!day.isWorkday)
        return text;
    const ClickModifier modifier = modifierFor(day.state);
    return modifier == ClickModifier::None
               ? LegendView::tr("%1: key %2", "state and digit").arg(text, keyText(day.state))
               : LegendView::tr("%1: %2 with a click, or key %3", "state, modifier key and digit")
                     .arg(text, keyName(modifier), keyText(day.state));
}

} // namespace

LegendView::LegendView(ViewSettings& settings, QWidget* parent)
    : QWidget(parent)
{
    constexpr int padding = SpokenGroup::ringRoom + 2;
    auto* rows = new SpokenGroup;
    auto* grid = new QGridLayout(rows);
    grid->setContentsMargins(padding, padding, padding, padding);
    grid->setHorizontalSpacing(14);
    grid->setVerticalSpacing(10);
    grid->setColumnStretch(textColumn, 1);
    for (const DayState state : allDayStates)
        addSwatch(*grid, {.id = 1, .state = state, .isWorkday = true}, description(state));
    addSwatch(*grid, {.id = 1}, tr("Weekend Day"));
    addDayOff(*grid);
    addWeek(*grid);
    grid->setRowMinimumHeight(grid->rowCount(), 4);
    addGesture(*grid, {}, Symbol::Click, tr("Change to Next Status"), tr("Click"));
    // Ctrl with a click resets a day here, so the Menu key and the right button open the menu instead.
    addGesture(*grid, tr("Menu", "key"), Symbol::RightClick, tr(": Open Status Picker Menu "),
               tr("Menu key or right click"));
    const QString keys = keyText(allDayStates.front()) + u'\u2013' + keyText(allDayStates.back());
    addGesture(*grid, keys, Symbol::Keyboard, tr("Set Status of Focused Day"), tr("Keys %1").arg(keys));
    const QString details = QKeySequence(Qt::Key_Return).toString(QKeySequence::NativeText);
    addGesture(*grid, details, Symbol::Keyboard, tr("Show Its Details and Note"), details);
    const QString shift = keyName(ClickModifier::Shift);
    addGesture(*grid, {}, Symbol::Click, tr("Select Days by Dragging"), tr("Drag"));
    addGesture(*grid, shift, Symbol::Keyboard, tr("Select Days with Arrows"), tr("%1 with an arrow key").arg(shift));
    const QString undo = QKeySequence(undoKeys).toString(QKeySequence::NativeText);
    //: %1 is the Shift key.
    addGesture(*grid, undo, Symbol::Keyboard, tr("Undo, with %1: Redo").arg(shift), undo);
    rows->setSpokenText(tr("Legend"), m_spoken);
    auto* hoverSwitch = new Switch(tr("Show day status on hover"));
    bindSwitch(hoverSwitch, settings.showStatusLabelOnHover);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(rows);
    auto* last = new QHBoxLayout;
    last->setContentsMargins(padding, 0, padding, 0);
    last->addWidget(hoverSwitch);
    column->addLayout(last);
}

void LegendView::addSwatch(QGridLayout& grid, const Day& day, const QString& text)
{
    const int row = grid.rowCount();
    grid.addWidget(new DaySwatch(day), row, swatchColumn, Qt::AlignCenter);
    const ClickModifier modifier = day.isWorkday ? modifierFor(day.state) : ClickModifier::None;
    if (modifier != ClickModifier::None)
        grid.addWidget(new KeyCap(keyName(modifier)), row, keyColumn, Qt::AlignLeft | Qt::AlignVCenter);
    if (day.isWorkday)
        grid.addWidget(new KeyCap(keyText(day.state)), row, numberColumn);
    addText(grid, row, text, spokenText(day, text));
}

void LegendView::addDayOff(QGridLayout& grid)
{
    const int row = grid.rowCount();
    grid.addWidget(new DaySwatch({.id = 1}, true), row, swatchColumn, Qt::AlignCenter);
    addText(grid, row, tr("Day Off, such as a Holiday"), tr("Day Off, such as a Holiday: a thin outline"));
}

void LegendView::addWeek(QGridLayout& grid)
{
    const int row = grid.rowCount();
    const QString week = tr("48 · 2", "number of a week, and its days in the office");
    grid.addWidget(labels::singleLine(labels::dim(week)), row, swatchColumn, Qt::AlignCenter);
    const QString text = tr("Week, and Its Office Days");
    addText(grid, row, text, text);
}

void LegendView::addGesture(QGridLayout& grid, const QString& key, Symbol symbol, const QString& text,
                            const QString& spoken)
{
    const int row = grid.rowCount();
    grid.addWidget(new SymbolView(symbol), row, swatchColumn, Qt::AlignCenter);
    if (!key.isEmpty())
        grid.addWidget(new KeyCap(key), row, keyColumn, Qt::AlignLeft | Qt::AlignVCenter);
    QString meaning = text.trimmed();
    meaning.remove(0, meaning.startsWith(u':') ? 1 : 0);
    addText(grid, row, text, tr("%1: %2", "gesture and what it does").arg(spoken, meaning.trimmed()));
}

void LegendView::addText(QGridLayout& grid, int row, const QString& text, const QString& spoken)
{
    QLabel* label = labels::singleLine(labels::text(text));
    label->setAccessibleName(spoken);
    grid.addWidget(label, row, textColumn);
    m_spoken.append(spoken);
}
