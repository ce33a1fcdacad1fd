// SPDX-License-Identifier: GPL-3.0-or-later
#include "CalendarViewTest.h"

#include <QAccessible>

TEST_F(CalendarViewTest, showsTheDaysOfTheMonthUnderTheirWeekdaysAndNothingElse)
{
    for (const int number : {2, 8}) { // four whole weeks; up to the 37th cell
        const auto shown = month(2026, number);
        view.setMonth(shown);
        EXPECT_EQ(QAccessible::queryAccessibleInterface(&view)->role(), QAccessible::Grouping);
        EXPECT_EQ(view.accessibleName(), shown->name);
        EXPECT_EQ(shownTexts(view).join(u' '),
                  u"%1 %2 workdays S M T W T F S"_s.arg(shown->name).arg(number == 2 ? 20 : 21));
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
    QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, {}, {});
    const std::function<void()> ways[]{
        [&] { click(dayButton(view, friday), {}, Qt::RightButton); },
        [&] { press(view, Qt::Key_F10, Qt::ShiftModifier); },
        [&] { QApplication::sendEvent(view.windowHandle(), &menuKey); },
    };
    for (std::size_t place = 0; place < allDayStates.size(); ++place) {
        view.setMonth(november);
        view.focusDay(friday);
        ways[std::min<std::size_t>(place, 2)]();
        QStringList items;
        for (const QAction* item : QApplication::activePopupWidget()->actions())
            items += item->icon().isNull() ? item->text() : item->text() + u'*';
        EXPECT_EQ(items.join(u' '), u"Unknown* In the Office Out of Office Vacation Day* Will Be In Office*"_s);
        view.setMonth(month(2026, 8)); // the choice is for the day that was asked about
        for (std::size_t step = 0; step <= place; ++step)
            press(view, Qt::Key_Down);
        press(view, Qt::Key_Return);
        EXPECT_EQ(dayOnDisk(friday).state, allDayStates.at(place));
    }
    EXPECT_EQ(month(2026, 8)->days.value(), Month(2026, 8).days.value());
}

TEST_F(CalendarViewTest, keysMoveBetweenTheDaysAndTabEntersWhereTheyLeft)
{
    const auto tabStops = [&] {
        auto cells = view.findChildren<CommandClickableButton*>();
        cells.removeIf([](const QWidget* cell) { return (cell->focusPolicy() & Qt::TabFocus) == 0; });
        return cells;
    };
    const std::pair<Qt::Key, int> keys[]{{Qt::Key_Left, 19}, {Qt::Key_Right, 21}, {Qt::Key_Up, 13},
                                         {Qt::Key_Down, 27}, {Qt::Key_Home, 1},   {Qt::Key_End, 30}};
    for (const auto& [key, day] : keys) {
        view.focusDay(friday);
        press(view, key);
        EXPECT_EQ(view.focusedDay(), day) << key;
        EXPECT_EQ(tabStops(), QList{&dayButton(view, day)});
    }
    view.setMonth(november);
    EXPECT_EQ(tabStops(), QList{&dayButton(view, friday)}) << "today";
    view.setMonth(month(2026, 8));
    EXPECT_EQ(tabStops(), QList{&dayButton(view, 1)});
}
