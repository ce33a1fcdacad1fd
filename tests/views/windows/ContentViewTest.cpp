// SPDX-License-Identifier: GPL-3.0-or-later
#include "ContentView.h"
#include "CalendarView.h"
#include "MarkedTextLabel.h"
#include "MonthView.h"
#include "QuarterView.h"
#include "ViewTest.h"

#include <QSignalSpy>
#include <QTabBar>

class ContentViewTest : public ViewTest {};

TEST_F(ContentViewTest, opensTheStoredTabAndTurnsThePagesOfBoth)
{
    for (const auto& [before, isQuarter] : {std::pair(1, false), {2, true}, {-3, false}, {7, true}}) {
        SCOPED_TRACE(before);
        viewSettings.selectedTab = before;
        ContentView window(parts);
        const QSignalSpy painted(&window, &ContentView::painted);
        show(window);
        EXPECT_TRUE(eventually([&] { return painted.size() == 1; }));
        EXPECT_EQ(window.findChildren<CalendarPage*>().size(), 1); // the other is built when it is shown
        EXPECT_EQ(window.findChild<QuarterView*>() != nullptr, isQuarter);
        dayButton(window, 15).setFocus();
        press(window, isQuarter ? Qt::Key_1 : Qt::Key_2, Qt::ControlModifier);
        EXPECT_EQ(window.focusWidget(), window.findChild<QTabBar*>());
        EXPECT_EQ(stored.value("contentViewSelectedTab"), QVariant(isQuarter ? 1 : 2));
        const auto& month = *window.findChild<MonthView*>();
        const auto& quarter = *window.findChild<QuarterView*>();
        EXPECT_EQ(month.isVisible(), isQuarter);
        EXPECT_EQ(quarter.isVisible(), !isQuarter);
        for (const auto& [key, held, isNext] : {std::tuple(Qt::Key_PageDown, Qt::NoModifier, true),
                                                {Qt::Key_Left, Qt::AltModifier, false},
                                                {Qt::Key_Right, Qt::AltModifier, true},
                                                {Qt::Key_PageUp, Qt::NoModifier, false}}) {
            press(window, key, held);
            EXPECT_EQ(month.period().month, isQuarter && isNext ? 12 : 11);
            EXPECT_EQ(quarter.quarter().quarter, !isQuarter && isNext ? 1 : 4);
        }
        press(window, isQuarter ? Qt::Key_2 : Qt::Key_1, Qt::ControlModifier);
        EXPECT_EQ(window.findChildren<CalendarPage*>().size(), 2);
        EXPECT_EQ(painted.size(), 1);
    }
}

TEST_F(ContentViewTest, whatDoesNotFitIsWrappedOrScrolledIntoSight)
{
    const QString wish = u"a wish that is much too long for a single line "_s.repeated(5) + QString(200, u'x');
    settings->daysPerWeekGoals.value().first()->desc = wish;
    ContentView window(parts);
    window.resize(540, 300);
    show(window);
    for (const auto* goal : window.findChildren<MarkedTextLabel*>(u"goal"_s)) {
        const QRect room(0, 0, goal->width(), 10'000);
        const auto lines =
            goal->fontMetrics().boundingRect(room, Qt::TextWordWrap | Qt::TextWrapAnywhere, goal->text());
        EXPECT_TRUE(eventually([&] { return goal->height() >= lines.height(); }));
    }
    for (const auto& [key, day] : {std::pair(Qt::Key_End, 30), std::pair(Qt::Key_Home, 1)}) {
        dayButton(window, 15).setFocus();
        press(window, key);
        const auto& button = dayButton(window, day);
        EXPECT_EQ(button.visibleRegion().boundingRect(), button.rect());
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
