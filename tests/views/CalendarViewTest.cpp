// SPDX-License-Identifier: GPL-3.0-or-later
#include "CalendarViewTest.h"

#include <QAccessible>
#include <QSignalSpy>

TEST_F(CalendarViewTest, showsTheDaysOfTheMonthUnderTheirWeekdaysAndNothingElse)
{
    // A month of four whole weeks, one that reaches the 37th cell, and one in between.
    for (const auto& [number, workdays] : {std::pair(2, 20), std::pair(8, 21), std::pair(11, 21)}) {
        SCOPED_TRACE(number);
        const auto shown = month(2026, number);
        view.setMonth(shown);
        EXPECT_EQ(shownTexts(view), QStringList({shown->name, u"%1 workdays"_s.arg(workdays), u"S"_s, u"M"_s, u"T"_s,
                                                 u"W"_s, u"T"_s, u"F"_s, u"S"_s}));
        const auto letters = view.findChildren<QLabel*>().last(7);
        for (int day = 1; day <= shown->daysInMonth; ++day) {
            const QLabel* letter = letters.at(QDate(2026, number, day).dayOfWeek() % 7);
            EXPECT_NEAR(inWindow(dayButton(view, day)).x(), inWindow(*letter).x(), 5) << day;
        }
        const auto before = shown->days.value();
        int hidden = 0;
        for (const auto* button : view.findChildren<CommandClickableButton*>()) {
            if (button->isVisible())
                continue;
            ++hidden;
            click(*button);
            click(*button, {}, Qt::RightButton);
            EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
            EXPECT_FALSE(button->hasFocus());
        }
        EXPECT_EQ(hidden, 37 - shown->daysInMonth);
        EXPECT_EQ(shown->days.value(), before);
    }
}

TEST_F(CalendarViewTest, thePickerOpensFromPointerAndKeysAndSetsEveryState)
{
    const std::function<void()> ways[]{
        [&] { click(dayButton(view, friday), {}, Qt::RightButton); },
        [&] { press(view, Qt::Key_F10, Qt::ShiftModifier); },
        [&] {
            QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, {}, {});
            QApplication::sendEvent(view.windowHandle(), &menuKey);
        },
    };
    for (const auto& open : ways) {
        int downs = 0;
        for (const DayState wanted : allDayStates) {
            view.setMonth(november);
            view.focusDay(friday);
            open();
            const QWidget* menu = QApplication::activePopupWidget();
            ASSERT_NE(menu, nullptr);
            QStringList items;
            for (const QAction* action : menu->actions())
                items.append(action->text() + (action->icon().isNull() ? QString() : u" (key)"_s));
            EXPECT_EQ(items, QStringList({u"Unknown (key)"_s, u"In the Office"_s, u"Out of Office"_s,
                                          u"Vacation Day (key)"_s, u"Will Be In Office (key)"_s}));
            view.setMonth(month(2026, 8)); // the choice is for the day that was asked about
            for (int step = 0; step <= downs; ++step)
                press(view, Qt::Key_Down);
            press(view, Qt::Key_Return);
            EXPECT_EQ(state(friday), wanted);
            EXPECT_EQ(stateOnDisk(friday), wanted);
            ++downs;
        }
    }
    EXPECT_EQ(month(2026, 8)->days.value(), Month(2026, 8).days.value());
    EXPECT_EQ(keyName(modifierReaching(DayState::UNKNOWN)), u"Ctrl"_s);
    EXPECT_EQ(keyName(modifierReaching(DayState::VACATION_DAY)), u"Shift"_s);
    EXPECT_EQ(keyName(modifierReaching(DayState::WILL_BE_IN_OFFICE)), u"Alt"_s);
}

TEST_F(CalendarViewTest, keysMoveBetweenTheDaysAndOutOfTheMonth)
{
    const std::tuple<int, Qt::Key, QDate> rows[]{
        {20, Qt::Key_Left, {2026, 11, 19}}, {20, Qt::Key_Right, {2026, 11, 21}}, {20, Qt::Key_Up, {2026, 11, 13}},
        {20, Qt::Key_Down, {2026, 11, 27}}, {20, Qt::Key_Home, {2026, 11, 1}},   {20, Qt::Key_End, {2026, 11, 30}},
        {1, Qt::Key_Left, {2026, 10, 31}},  {30, Qt::Key_Right, {2026, 12, 1}},  {3, Qt::Key_Up, {2026, 10, 27}},
        {28, Qt::Key_Down, {2026, 12, 5}},
    };
    QSignalSpy requested(&view, &CalendarView::dayRequested);
    for (const auto& [from, key, to] : rows) {
        SCOPED_TRACE(testing::Message() << from << ", key " << key);
        requested.clear();
        view.focusDay(from);
        press(view, key);
        const bool isHere = to.month() == 11;
        EXPECT_EQ(view.focusedDay(), isHere ? to.day() : from);
        EXPECT_EQ(requested, isHere ? QList<QVariantList>() : QList<QVariantList>({{to}}));
    }
    const auto tabStops = [&] {
        QStringList days;
        for (const auto* button : view.findChildren<CommandClickableButton*>()) {
            if ((button->focusPolicy() & Qt::TabFocus) != 0)
                days.append(button->text());
        }
        return days;
    };
    EXPECT_EQ(tabStops(), QStringList(u"28"_s));
    view.setMonth(november);
    EXPECT_EQ(tabStops(), QStringList(u"20"_s));
    view.setMonth(month(2026, 8));
    EXPECT_EQ(tabStops(), QStringList(u"1"_s));
}

TEST_F(CalendarViewTest, tellsAssistiveTechnologyWhatIsShownAndObeysIt)
{
    mark(*november, friday, DayState::WILL_BE_IN_OFFICE);
    auto* button = QAccessible::queryAccessibleInterface(&dayButton(view, friday));
    EXPECT_EQ(button->role(), QAccessible::Button);
    EXPECT_EQ(button->text(QAccessible::Name), u"Friday 20 November 2026, Will Be In Office"_s);
    button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(eventually([&] { return state(friday) == DayState::UNKNOWN; }));
    EXPECT_EQ(button->text(QAccessible::Name), u"Friday 20 November 2026, Unknown"_s);
    auto* grid = QAccessible::queryAccessibleInterface(&view);
    EXPECT_EQ(grid->role(), QAccessible::Grouping);
    EXPECT_EQ(grid->text(QAccessible::Name), u"November"_s);
}

TEST_F(CalendarViewTest, theRingAndTheYearFollowToday)
{
    const auto ringed = [&] {
        QList<int> days;
        for (int day = 1; day <= 30; ++day) {
            if (painted(dayButton(view, day), -3) != view.palette().window().color())
                days.append(day);
        }
        return days;
    };
    EXPECT_EQ(ringed(), QList({20}));
    clock.beginDay({2026, 11, 21});
    EXPECT_EQ(ringed(), QList({21}));
    view.setMonth(month(2025, 11));
    EXPECT_EQ(ringed(), QList<int>());
    EXPECT_EQ(shownTexts(view).first(), u"November 2025"_s);
    view.setMonth(november);
    clock.beginDay({2027, 11, 21});
    EXPECT_EQ(ringed(), QList<int>());
    EXPECT_EQ(shownTexts(view).first(), u"November 2026"_s);
}
