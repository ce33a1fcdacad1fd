// SPDX-License-Identifier: GPL-3.0-or-later
#include "CalendarViewTest.h"
#include "GridOrder.h"
#include "WeekLabel.h"

#include <QAccessible>
#include <QMenu>

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

TEST(GridOrderTest, everyDayHasAPlaceInTheColumnOfItsWeekdayWhateverDayIsTheFirst)
{
    for (int start = Qt::Monday; start <= Qt::Sunday; ++start) {
        for (QDate first(2026, 1, 1); first.year() < 2033; first = first.addMonths(1)) {
            const Month month(first.year(), first.month());
            const GridOrder order(Qt::DayOfWeek(start), first);
            for (int day = 1; day <= first.daysInMonth(); ++day) {
                const qsizetype index = *month.indexOf(day);
                const qsizetype place = order.placeOf(index);
                ASSERT_TRUE(place >= day - 1 && place < GridOrder::places) << start << ' ' << place;
                ASSERT_EQ(order.indexAt(place), index);
                ASSERT_EQ(order.dateAt(place), month.dateOf(day));
                ASSERT_TRUE(place == index || start != Qt::Sunday);
                ASSERT_EQ(place % 7, GridOrder::columnOf(month.dateOf(day).dayOfWeek(), Qt::DayOfWeek(start)));
            }
        }
    }
}

TEST_F(CalendarViewTest, anotherFirstDayOfTheWeekMovesTheDaysAndNotTheFocus)
{
    const QSize size = view.size();
    const auto expectDays = [&](const QString& letters, int lineOf29) {
        EXPECT_EQ(shownTexts(view).last(7).join(QString()), letters);
        EXPECT_EQ(dayButton(view, 29).y() - dayButton(view, 1).y(), lineOf29 * dayButton(view, 1).height());
        EXPECT_EQ(dayButton(view, 2).x() > dayButton(view, 1).x(), letters.startsWith(u"S"));
        EXPECT_EQ(view.focusedDay(), friday);
        press(view, Qt::Key_2);
        EXPECT_EQ(dayOnDisk(friday).state, DayState::IN_OFFICE);
        press(view, Qt::Key_Down);
        press(view, Qt::Key_1);
        EXPECT_EQ(view.focusedDay(), friday + 7);
        press(view, Qt::Key_Up);
        press(view, Qt::Key_1);
        EXPECT_EQ(view.size(), size);
    };
    view.focusDay(friday);
    expectDays(u"SMTWTFS"_s, 4);
    viewSettings.firstDayOfWeek = Qt::Monday;
    expectDays(u"MTWTFSS"_s, 4);
    click(dayButton(view, friday));
    EXPECT_EQ(dayOnDisk(friday).state, DayState::IN_OFFICE);
    viewSettings.firstDayOfWeek = Qt::Saturday;
    press(view, Qt::Key_1);
    expectDays(u"SSMTWTF"_s, 4);
}

TEST_F(CalendarViewTest, weeksCountTheirOfficeDaysWithThoseOfTheNeighbouringMonths)
{
    const auto weeks = [&] {
        QStringList texts;
        for (const auto* week : view.findChildren<WeekLabel*>()) {
            if (week->isVisible())
                texts += week->accessibleName().section(u' ', 1);
        }
        return texts.join(u' ').remove(u" office days"_s).remove(u" office day"_s);
    };
    const auto setState = [&](QDate date, DayState state) {
        marker.mark({{date, state}}, ChangedBy::Hand);
        QApplication::processEvents();
    };
    setState({2026, 10, 27}, DayState::IN_OFFICE);
    EXPECT_EQ(weeks(), QString());
    const QSize size = view.sizeHint();
    viewSettings.showWeekNumbers = true;
    EXPECT_GT(view.sizeHint().width(), size.width());
    EXPECT_EQ(view.sizeHint().height(), size.height());
    EXPECT_EQ(weeks(), u"45: 0 46: 0 47: 0 48: 0 49: 0"_s); // a week that begins on Sunday has the number of its Monday
    viewSettings.firstDayOfWeek = Qt::Monday;
    EXPECT_EQ(weeks(), u"44: 1 45: 0 46: 0 47: 0 48: 0 49: 0"_s);
    setState({2026, 12, 6}, DayState::IN_OFFICE);
    EXPECT_EQ(weeks(), u"44: 1 45: 0 46: 0 47: 0 48: 0 49: 1"_s);
    setState({2026, 10, 25}, DayState::IN_OFFICE);
    click(dayButton(view, friday));
    EXPECT_EQ(weeks(), u"44: 1 45: 0 46: 0 47: 1 48: 0 49: 1"_s);
    AttendanceRule rule; // of a month
    EXPECT_TRUE(counting.addRule(rule));
    rule.name = u"W"_s;
    rule.amount = 100;
    rule.unit = AttendanceRule::Unit::Days;
    rule.span = AttendanceRule::Span::Week;
    AttendanceRule other = rule; // which weeks do not show
    other.bound = AttendanceRule::Bound::AtMost;
    EXPECT_TRUE(counting.addRule(other));
    other.bound = AttendanceRule::Bound::AtLeast;
    other.subject = AttendanceRule::Subject::OutOfOffice;
    EXPECT_TRUE(counting.addRule(other));
    other.subject = AttendanceRule::Subject::InOffice;
    other.until = QDate(2026, 10, 1);
    EXPECT_TRUE(counting.addRule(other));
    rule.from = QDate(2026, 11, 16);
    rule.until = QDate(2026, 11, 29);
    EXPECT_TRUE(counting.addRule(rule));
    EXPECT_EQ(weeks(), u"44: 1 45: 0 46: 0 47: 1. W: 1 of 1, reached 48: 0. W: 0 of 1 49: 1"_s);
    mark(*november, 24, DayState::VACATION_DAY);
    settings->vacationDaysCountAsInOffice = true;
    EXPECT_EQ(weeks(), u"44: 1 45: 0 46: 0 47: 1. W: 1 of 1, reached 48: 1. W: 1 of 1, reached 49: 1"_s);
    view.setMonth(std::make_shared<Month>(2026, 12)); // a sample
    EXPECT_EQ(weeks(), QString());
    viewSettings.showWeekNumbers = false;
    EXPECT_EQ(view.findChild<WeekLabel*>(), nullptr);
}

TEST_F(CalendarViewTest, theMenuSaysWhyOneIsOutOfOfficeAndThatADayIsNoWorkday)
{
    using enum Qt::Key;
    const Look look;
    const Theme& theme = themeFor(look);
    const std::tuple<QList<Qt::Key>, QString, QColor, int> rows[]{
        {{Key_A, Key_S}, u"Out of Office (Sick)"_s, theme.outOfOffice, 21},
        {{Key_A, Key_B}, u"Out of Office (Business Trip)"_s, theme.outOfOffice, 21},
        {{Key_N}, u"Out of Office (Business Trip), Day Off"_s, theme.outOfOffice, 20},
        {{Key_A, Key_B}, u"Out of Office, Day Off"_s, theme.outOfOffice, 20},
        {{Key_1}, u"Unknown, Day Off"_s, theme.nonWorkday, 20},
        {{Key_N}, u"Unknown"_s, theme.unknown, 21},
    };
    for (const auto& [keys, spoken, color, workdays] : rows) {
        view.focusDay(friday);
        press(view, Key_F10, Qt::ShiftModifier);
        for (const Qt::Key key : keys) {
            const QWidget* menu = QApplication::activePopupWidget();
            press(view, key);
            EXPECT_TRUE(eventually([&] { return QApplication::activePopupWidget() != menu; }));
        }
        auto& button = dayButton(view, friday);
        EXPECT_EQ(button.accessibleName(), u"Friday 20 November 2026, "_s + spoken);
        EXPECT_EQ(painted(button, 4), color) << qPrintable(spoken);
        EXPECT_EQ(painted(button, 1) != color, spoken.endsWith(u"Day Off")) << qPrintable(spoken);
        EXPECT_TRUE(shownTexts(view).contains(u"%1 workdays"_s.arg(workdays))) << qPrintable(spoken);
        EXPECT_TRUE(dayOnDisk(friday).isWorkday);
    }
    const auto entries = [&](int day) {
        view.focusDay(day);
        press(view, Key_F10, Qt::ShiftModifier);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        const auto count = menu->actions().size();
        menu->close();
        return count;
    };
    EXPECT_LT(entries(21), entries(friday)) << "a Saturday is no workday anyway";
    EXPECT_TRUE(counting.addDaysOff({{{2026, 11, friday}}}));
    EXPECT_EQ(dayButton(view, friday).accessibleName(), u"Friday 20 November 2026, Unknown, Day Off"_s);
    EXPECT_TRUE(counting.removeDaysOff({{2026, 11, friday}}));
    view.setMonth(std::make_shared<Month>(2026, 11)); // a sample
    EXPECT_EQ(entries(friday), std::ssize(allDayStates));
    view.setMonth(november);
    counting.setWorkWeek({{2026, 11, 1}, Weekdays(0b1000001)}); // Sunday and Monday
    EXPECT_EQ(painted(dayButton(view, friday), 4), theme.nonWorkday);
    EXPECT_EQ(painted(dayButton(view, 22), 4), theme.unknown);
    EXPECT_TRUE(counting.setLeavesOutVacation(true));
    view.focusDay(22);
    press(view, Key_4);
    EXPECT_TRUE(shownTexts(view).contains(u"9 workdays"_s));
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
    // Keys start at the current state, which is the one set last; after the pointer the first one leads there.
    const QList<Qt::Key> choices[]{
        {Qt::Key_Down, Qt::Key_Return}, {Qt::Key_Down, Qt::Key_Return}, {Qt::Key_O}, {Qt::Key_4},
        {Qt::Key_Down, Qt::Key_Return},
    };
    int current = 1;
    for (std::size_t place = 0; place < allDayStates.size(); ++place) {
        view.setMonth(november);
        show(view);
        view.focusDay(friday);
        ways[std::min<std::size_t>(place, 2)]();
        ASSERT_NE(QApplication::activePopupWidget(), nullptr) << place;
        QString items;
        for (const QAction* item : QApplication::activePopupWidget()->actions())
            items += item->text() + item->shortcut().toString() + (item->isChecked() ? u'*' : u' ');
        QString expected =
            u"&Unknown1 &In the Office2 &Out of Office3 &Vacation Day4 &Will Be In Office5  Out of Office &As &Not a Workday  &Details…Return "_s;
        expected[expected.indexOf(QString::number(current)) + 1] = u'*';
        EXPECT_EQ(items, expected);
        view.setMonth(month(2026, 8)); // the choice is for the day that was asked about
        for (const Qt::Key key : choices[place])
            press(view, key);
        EXPECT_EQ(dayOnDisk(friday).state, allDayStates.at(place));
        current = int(place) + 1;
    }
    EXPECT_EQ(month(2026, 8)->days.value(), Month(2026, 8).days.value());
}

TEST_F(CalendarViewTest, thePickerOpensBesideTheDayAndTakesOnlyADeliberateRelease)
{
    auto& button = dayButton(view, friday);
    for (const bool isAfter : {true, false}) {
        view.setLayoutDirection(isAfter ? Qt::LeftToRight : Qt::RightToLeft);
        view.move(isAfter ? 0 : 400, 100);
        QApplication::processEvents();
        const QRect cell(button.mapToGlobal(QPoint()), button.size());
        const QPoint edge = isAfter ? cell.topRight() : cell.topLeft();
        for (const auto& [way, after] : {std::pair(8, DayState::IN_OFFICE), {40, DayState::UNKNOWN}}) {
            mark(*november, friday, DayState::IN_OFFICE);
            show(view);
            QCursor::setPos(edge);
            QTest::mousePress(view.windowHandle(), Qt::RightButton, {}, view.mapFromGlobal(edge));
            const QWidget* picker = QApplication::activePopupWidget();
            ASSERT_NE(picker, nullptr);
            EXPECT_FALSE(picker->geometry().intersects(cell));
            const QPoint end = picker->mapFromGlobal(edge + QPoint(isAfter ? way : -way, 10));
            moveTo(*picker, end);
            QTest::mouseRelease(picker->windowHandle(), Qt::RightButton, {}, end);
            EXPECT_EQ(dayOnDisk(friday).state, after) << isAfter << ' ' << way;
            press(view, Qt::Key_Escape);
            EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
        }
    }
}

TEST_F(CalendarViewTest, numberKeysSetTheStateOfTheFocusedDay)
{
    view.focusDay(friday);
    for (const DayState state : allDayStates) {
        press(view, Qt::Key(Qt::Key_1 + int(state)));
        EXPECT_EQ(dayOnDisk(friday).state, state);
    }
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
