// SPDX-License-Identifier: GPL-3.0-or-later
#include "CalendarViewTest.h"

#include <QAccessible>

TEST_F(CalendarViewTest, showsTheDaysOfTheMonthUnderTheirWeekdaysAndNothingElse)
{
    for (const auto& [number, workdays] :
         {std::pair(2, 20), std::pair(8, 21)}) { // four whole weeks; up to the 37th cell
        const auto shown = month(2026, number);
        view.setMonth(shown);
        EXPECT_EQ(shownTexts(view), QStringList({shown->name, u"%1 workdays"_s.arg(workdays), u"S"_s, u"M"_s, u"T"_s,
                                                 u"W"_s, u"T"_s, u"F"_s, u"S"_s}));
        const auto letters = view.findChildren<QLabel*>().last(7);
        for (int day = 1; day <= shown->daysInMonth; ++day) {
            const QLabel* letter = letters.at(QDate(2026, number, day).dayOfWeek() % 7);
            EXPECT_NEAR(inWindow(dayButton(view, day)).x(), inWindow(*letter).x(), 5) << day;
        }
        const auto buttons = view.findChildren<CommandClickableButton*>();
        EXPECT_EQ(std::ranges::count_if(buttons, &QWidget::isVisible), shown->daysInMonth);
    }
}

TEST_F(CalendarViewTest, thePickerOpensFromPointerAndKeysAndSetsEveryState)
{
    const std::function<void()> ways[]{
        [&] {
            moveTo(view, {}); // or the second time would be a double click
            click(dayButton(view, friday), {}, Qt::RightButton);
        },
        [&] { press(view, Qt::Key_F10, Qt::ShiftModifier); },
        [&] {
            QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, {}, {});
            QApplication::sendEvent(view.windowHandle(), &menuKey);
        },
    };
    const QStringList items{u"Unknown Ctrl"_s, u"In the Office "_s, u"Out of Office "_s, u"Vacation Day Shift"_s,
                            u"Will Be In Office Alt"_s};
    for (std::size_t place = 0; place < allDayStates.size(); ++place) {
        view.setMonth(november);
        view.focusDay(friday);
        ways[place % 3]();
        const QWidget* menu = QApplication::activePopupWidget();
        ASSERT_NE(menu, nullptr);
        for (qsizetype i = 0; i < items.size(); ++i) {
            const QString key = keyName(modifierFor(allDayStates.at(std::size_t(i))));
            EXPECT_EQ(menu->actions().at(i)->text() + u' ' + key, items.at(i));
            EXPECT_EQ(menu->actions().at(i)->icon().isNull(), key.isEmpty());
        }
        view.setMonth(month(2026, 8)); // the choice is for the day that was asked about
        for (std::size_t step = 0; step <= place; ++step)
            press(view, Qt::Key_Down);
        press(view, Qt::Key_Return);
        EXPECT_EQ(state(friday), allDayStates.at(place));
        EXPECT_EQ(dayOnDisk(friday).state, allDayStates.at(place));
    }
    EXPECT_EQ(month(2026, 8)->days.value(), Month(2026, 8).days.value());
}

TEST_F(CalendarViewTest, keysMoveBetweenTheDaysAndTabEntersWhereTheyLeft)
{
    const auto tabStops = [&] {
        QStringList found;
        for (const auto* button : view.findChildren<CommandClickableButton*>()) {
            if ((button->focusPolicy() & Qt::TabFocus) != 0)
                found.append(button->text());
        }
        return found;
    };
    const std::pair<Qt::Key, int> keys[]{{Qt::Key_Left, 19}, {Qt::Key_Right, 21}, {Qt::Key_Up, 13},
                                         {Qt::Key_Down, 27}, {Qt::Key_Home, 1},   {Qt::Key_End, 30}};
    for (const auto& [key, day] : keys) {
        view.focusDay(friday);
        press(view, key);
        EXPECT_EQ(view.focusedDay(), day) << key;
        EXPECT_EQ(tabStops(), QStringList(QString::number(day)));
    }
    view.setMonth(november);
    EXPECT_EQ(tabStops(), QStringList(u"20"_s)) << "today";
    view.setMonth(month(2026, 8));
    EXPECT_EQ(tabStops(), QStringList(u"1"_s));
}

TEST_F(CalendarViewTest, assistiveTechnologyReadsAndPressesADay)
{
    auto* button = QAccessible::queryAccessibleInterface(&dayButton(view, friday));
    const auto name = [&] { return button->text(QAccessible::Name); };
    EXPECT_EQ(name(), u"Friday 20 November 2026, Unknown"_s);
    button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(eventually([&] { return name() == u"Friday 20 November 2026, In the Office"_s; }));
    auto* grid = QAccessible::queryAccessibleInterface(&view);
    EXPECT_EQ(grid->role(), QAccessible::Grouping);
    EXPECT_EQ(grid->text(QAccessible::Name), u"November"_s);
}
