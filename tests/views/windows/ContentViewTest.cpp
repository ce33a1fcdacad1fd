// SPDX-License-Identifier: GPL-3.0-or-later
#include "ContentView.h"
#include "CalendarView.h"
#include "MonthCard.h"
#include "MonthView.h"
#include "QuarterView.h"
#include "ViewTest.h"

#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTabBar>

class ContentViewTest : public ViewTest {};

TEST_F(ContentViewTest, opensTheStoredTabAndTurnsThePagesOfBoth)
{
    for (const auto& [before, isQuarter] : {std::pair(-3, false), {2, true}}) {
        SCOPED_TRACE(before);
        viewSettings.selectedTab = before;
        ContentView window(parts);
        const QSignalSpy painted(&window, &ContentView::painted);
        window.resize(540, 2400);
        show(window);
        EXPECT_TRUE(eventually([&] { return painted.size() == 1; }));
        EXPECT_EQ(window.findChildren<CalendarPage*>().size(), 1); // the other is built when it is shown
        const auto today = u"Friday 20 November 2026, Unknown"_s;
        const auto isRinged = [&window] {
            QWidget& day = *window.focusWidget();
            return day.grab().toImage().pixelColor(day.width() / 2, 1) == themeFor(Look()).accent;
        };
        EXPECT_EQ(window.focusWidget()->accessibleName(), today);
        EXPECT_FALSE(isRinged());
        press(window, isQuarter ? Qt::Key_1 : Qt::Key_2, Qt::ControlModifier);
        EXPECT_EQ(window.focusWidget()->accessibleName(), today);
        EXPECT_TRUE(isRinged());
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

TEST_F(ContentViewTest, thePageScrollsToTheFocusForTheKeyboardOnly)
{
    viewSettings.selectedTab = 2;
    ContentView window(parts);
    window.resize(540, 300);
    show(window);
    const QPoint place = inWindow(named<QWidget>(window, "next"));
    for (const char* control : {"next", "previous"}) {
        click(named<QWidget>(window, control));
        EXPECT_EQ(inWindow(named<QWidget>(window, "next")), place);
    }
    press(window, Qt::Key_1, Qt::ControlModifier);
    press(window, Qt::Key_2, Qt::ControlModifier);
    EXPECT_TRUE(eventually([&] { return !window.focusWidget()->visibleRegion().isEmpty(); }));
}

TEST_F(ContentViewTest, theMonthsHaveEqualGapsAndNothingScrollsSideways)
{
    viewSettings.selectedTab = 2;
    ContentView window(parts);
    show(window);
    const auto& scroll = *window.findChild<QScrollArea*>();
    const auto months = window.findChildren<MonthCard*>();
    for (const int width : {window.minimumSizeHint().width(), 1200, 1280, 1920}) {
        window.resize(width, 640);
        const auto isArranged = [&] {
            const QPoint step = width < 1280 ? QPoint(0, months[0]->height() + 16) : QPoint(months[0]->width() + 16, 0);
            return months[1]->pos() - months[0]->pos() == step && months[2]->pos() - months[1]->pos() == step &&
                   months[2]->geometry().right() < width;
        };
        EXPECT_TRUE(eventually(isArranged)) << width;
        EXPECT_EQ(scroll.viewport()->width(), width) << "the scroll bar takes no room";
        EXPECT_EQ(scroll.horizontalScrollBar()->maximum(), 0);
    }
}
