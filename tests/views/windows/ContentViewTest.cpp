// SPDX-License-Identifier: GPL-3.0-or-later
#include "ContentView.h"
#include "CalendarView.h"
#include "MonthView.h"
#include "QuarterView.h"
#include "ViewTest.h"

#include <QSignalSpy>
#include <QTabBar>

class ContentViewTest : public ViewTest {};

TEST_F(ContentViewTest, opensTheStoredTabAndTurnsThePagesOfBoth)
{
    for (const auto& [before, isQuarter] : {std::pair(-3, false), {2, true}, {7, true}}) {
        SCOPED_TRACE(before);
        viewSettings.selectedTab = before;
        ContentView window(parts);
        const QSignalSpy painted(&window, &ContentView::painted);
        show(window);
        EXPECT_TRUE(eventually([&] { return painted.size() == 1; }));
        EXPECT_EQ(window.findChildren<CalendarPage*>().size(), 1); // the other is built when it is shown
        dayButton(window, 15).setFocus();
        press(window, isQuarter ? Qt::Key_1 : Qt::Key_2, Qt::ControlModifier);
        EXPECT_EQ(window.focusWidget(), window.findChild<QTabBar*>());
        EXPECT_EQ(stored.value("contentViewSelectedTab"), QVariant(isQuarter ? 1 : 2));
        auto& month = *window.findChild<MonthView*>();
        auto& quarter = *window.findChild<QuarterView*>();
        EXPECT_EQ(month.isVisible(), isQuarter);
        EXPECT_EQ(quarter.isVisible(), !isQuarter);
        const CalendarPage& page = isQuarter ? static_cast<CalendarPage&>(month) : quarter;
        const std::pair<std::function<void()>, bool> ways[]{
            {[&] { press(window, Qt::Key_PageDown); }, true},
            {[&] { press(window, Qt::Key_Left, Qt::AltModifier); }, false},
            {[&] { press(window, Qt::Key_Right, Qt::AltModifier); }, true},
            {[&] { press(window, Qt::Key_PageUp); }, false},
            {[&] { click(named<QAbstractButton>(page, "next")); }, true},
            {[&] { click(named<QAbstractButton>(page, "previous")); }, false},
            {[&] { press(window, Qt::Key_PageDown); }, true},
            {[&] { press(window, Qt::Key_Home, Qt::ControlModifier); }, false},
        };
        for (const auto& [turn, isNext] : ways) {
            turn();
            EXPECT_EQ(month.month(), (YearMonth{2026, isQuarter && isNext ? 12 : 11}));
            EXPECT_EQ(quarter.month().quarter(), (!isQuarter && isNext ? YearQuarter{2027, 1} : YearQuarter{2026, 4}));
        }
    }
}

TEST_F(ContentViewTest, theFocusedDayIsScrolledIntoSight)
{
    ContentView window(parts);
    window.resize(540, 300);
    show(window);
    dayButton(window, 15).setFocus();
    for (const auto& [key, day] : {std::pair(Qt::Key_End, 30), std::pair(Qt::Key_Home, 1)}) {
        press(window, key);
        EXPECT_EQ(dayButton(window, day).visibleRegion().boundingRect(), dayButton(window, day).rect());
    }
}

TEST_F(ContentViewTest, theMonthsStandSideBySideWhereThereIsRoom)
{
    viewSettings.selectedTab = 2;
    ContentView window(parts);
    show(window);
    const auto months = window.findChildren<CalendarView*>();
    const auto way = [&] { return inWindow(*months.last()) - inWindow(*months.first()); };
    for (const int width : {600, 1600, 600}) {
        window.resize(width, 800);
        EXPECT_TRUE(eventually([&] { return (way().x() > 0) == (width == 1600) && (way().y() > 0) == (width == 600); }))
            << width << ": " << way().x() << ", " << way().y();
    }
}
