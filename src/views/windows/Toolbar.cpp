// SPDX-License-Identifier: GPL-3.0-or-later
#include "Toolbar.h"

#include "CalendarPage.h"
#include "IconButton.h"
#include "MenuStyle.h"
#include "WindowId.h"

#include <QHBoxLayout>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace {

constexpr int menuGap = 4;

} // namespace

Toolbar::Toolbar(QWidget* parent)
    : QWidget(parent)
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->setSpacing(2); // more would push the tabs off the middle of a narrow window
    const auto add = [this, row](Symbol symbol, const QString& text, WindowId id) {
        auto* button = new IconButton(symbol, text);
        connect(button, &QAbstractButton::clicked, this, [this, id] { Q_EMIT windowRequested(id); });
        row->addWidget(button);
    };
    add(Symbol::DocumentGear, tr("Calendar View Settings"), WindowId::calendarViewSettings);
    add(Symbol::Gear, tr("Settings"), WindowId::settings);
    add(Symbol::Question, tr("Help"), WindowId::help);
    auto* menu = new IconButton(Symbol::Menu, tr("Menu"));
    menu->setObjectName("menu"_L1);
    connect(menu, &QAbstractButton::clicked, this, [this, menu] { popUpMenu(*menu); });
    row->addWidget(menu);
}

QMenu* Toolbar::makeMenu()
{
    auto* menu = new QMenu(this);
    MenuStyle::apply(*menu);
    connect(menu, &QMenu::aboutToHide, menu, &QObject::deleteLater);
    const auto add = [this, menu](const QString& text, const QKeySequence& keys, auto signal, auto... arguments) {
        QAction* action = menu->addAction(text);
        action->setShortcut(keys);
        action->setShortcutContext(Qt::WidgetShortcut);
        connect(action, &QAction::triggered, this, [=, this] { (this->*signal)(arguments...); });
    };
    add(tr("Undo"), undoKeys, &Toolbar::undoRequested);
    add(tr("Redo"), redoKeys, &Toolbar::redoRequested);
    menu->addSeparator();
    Q_EMIT menuOpening(*menu);
    menu->addSeparator();
    add(tr("Help"), Qt::Key_F1, &Toolbar::windowRequested, WindowId::help);
    add(tr("About Pellory"), {}, &Toolbar::windowRequested, WindowId::about);
    menu->addSeparator();
    add(tr("Quit"), Qt::CTRL | Qt::Key_Q, &Toolbar::quitRequested);
    return menu;
}

void Toolbar::popUpMenu(QWidget& button)
{
    QMenu* menu = makeMenu();
    const bool isLeftToRight = layoutDirection() == Qt::LeftToRight;
    const QRect above = button.rect().adjusted(0, 0, 0, menuGap);
    menu->popup(button.mapToGlobal(isLeftToRight ? above.bottomRight() + QPoint(1 - menu->sizeHint().width(), 0)
                                                 : above.bottomLeft()));
}
