// SPDX-License-Identifier: GPL-3.0-or-later
#include "LegendView.h"

#include "Day.h"
#include "KeyCap.h"
#include "Labels.h"
#include "StateGestures.h"
#include "StateMark.h"
#include "Switch.h"
#include "SymbolView.h"
#include "Theme.h"
#include "ViewSettings.h"

#include <QGridLayout>
#include <QKeySequence>
#include <QPainter>

namespace {

constexpr int swatchColumn = 0;
constexpr int keyColumn = 1;
constexpr int textColumn = 2;
constexpr int numberColumn = 3;

class Swatch : public QWidget {
public:
    explicit Swatch(const Day& day)
        : m_day(day)
    {
        setFixedSize(28, 21);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        drawDaySwatch(painter, rect(), themeFor(palette()), m_day);
    }

private:
    Day m_day;
};

QString keyText(DayState state)
{
    return QKeySequence(keyFor(state)).toString();
}

} // namespace

LegendView::LegendView(ViewSettings& settings, QWidget* parent)
    : QWidget(parent)
{
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins({});
    grid->setHorizontalSpacing(14);
    grid->setVerticalSpacing(10);
    grid->setColumnStretch(textColumn, 1);
    for (const DayState state : allDayStates)
        addSwatch(*grid, {.id = 1, .state = state, .isWorkday = true}, description(state));
    addSwatch(*grid, {.id = 1}, tr("Weekend Day"));
    grid->setRowMinimumHeight(grid->rowCount(), 4);
    addGesture(*grid, {}, Symbol::Click, tr("Change to Next Status"));
    // Ctrl with a click resets a day here, so the Menu key and the right button open the menu instead.
    addGesture(*grid, tr("Menu", "key"), Symbol::RightClick, tr(": Open Status Picker Menu "));
    addGesture(*grid, keyText(allDayStates.front()) + u'\u2013' + keyText(allDayStates.back()), Symbol::Keyboard,
               tr("Set Status of Focused Day"));
    auto* hoverSwitch = new Switch(tr("Show day status on hover"));
    bindSwitch(hoverSwitch, settings.showStatusLabelOnHover);
    grid->setRowMinimumHeight(grid->rowCount(), 4);
    grid->addWidget(hoverSwitch, grid->rowCount(), 0, 1, -1);
}

void LegendView::addSwatch(QGridLayout& grid, const Day& day, const QString& text)
{
    const int row = grid.rowCount();
    grid.addWidget(new Swatch(day), row, swatchColumn, Qt::AlignCenter);
    const ClickModifier modifier = day.isWorkday ? modifierFor(day.state) : ClickModifier::None;
    if (modifier != ClickModifier::None)
        grid.addWidget(new KeyCap(keyName(modifier)), row, keyColumn, Qt::AlignLeft | Qt::AlignVCenter);
    grid.addWidget(labels::singleLine(labels::text(text)), row, textColumn);
    if (day.isWorkday)
        grid.addWidget(new KeyCap(keyText(day.state)), row, numberColumn);
}

void LegendView::addGesture(QGridLayout& grid, const QString& key, Symbol symbol, const QString& text)
{
    const int row = grid.rowCount();
    grid.addWidget(new SymbolView(symbol), row, swatchColumn, Qt::AlignCenter);
    if (!key.isEmpty())
        grid.addWidget(new KeyCap(key), row, keyColumn, Qt::AlignLeft | Qt::AlignVCenter);
    grid.addWidget(labels::singleLine(labels::text(text)), row, textColumn);
}
