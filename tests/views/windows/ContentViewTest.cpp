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

TEST_F(ContentViewTest, settingsHaveTheirKeysAndAreStoredAtOnce)
{
    const std::pair<QString, QProperty<bool> ViewSettings::*> switches[]{
        {u"ProgressBars"_s, &ViewSettings::showProgressBars},
        {u"QuarterStats"_s, &ViewSettings::showQuarterStats},
        {u"MonthStats"_s, &ViewSettings::showMonthStats},
        {u"WillBeInOfficeStats"_s, &ViewSettings::showWillBeInOfficeStats},
        {u"StatusLabelOnHover"_s, &ViewSettings::showStatusLabelOnHover},
    };
    for (const auto& [name, field] : switches) {
        const QString key = u"calendarViewShow"_s + name;
        EXPECT_TRUE(viewSettings.*field) << qPrintable(key);
        viewSettings.*field = false;
        EXPECT_EQ(stored.allKeys(), QStringList(key));
        EXPECT_EQ(stored.value(key), QVariant(false));
        EXPECT_FALSE(ViewSettings(stored).*field);
        stored.remove(key);
    }
    EXPECT_EQ(viewSettings.selectedTab, 1);
}

TEST_F(ContentViewTest, opensTheStoredTabAndBuildsTheOtherWhenItIsShown)
{
    for (const auto& [before, isQuarter] : {std::pair(1, false), {2, true}, {-3, false}, {7, true}}) {
        SCOPED_TRACE(before);
        viewSettings.selectedTab = before;
        ContentView window(parts);
        const QSignalSpy painted(&window, &ContentView::painted);
        show(window);
        EXPECT_TRUE(eventually([&] { return painted.size() == 1; }));
        auto* tabs = window.findChild<QTabBar*>();
        EXPECT_EQ(tabs->currentIndex(), isQuarter ? 1 : 0);
        EXPECT_EQ(window.findChild<MonthView*>() == nullptr, isQuarter);
        EXPECT_EQ(window.findChild<QuarterView*>() == nullptr, !isQuarter);
        const QPoint otherTab = tabs->tabRect(isQuarter ? 0 : 1).center();
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, tabs->mapTo(&window, otherTab));
        EXPECT_EQ(stored.value("contentViewSelectedTab"), QVariant(isQuarter ? 1 : 2));
        EXPECT_EQ(window.findChild<MonthView*>()->isVisible(), isQuarter);
        EXPECT_EQ(window.findChild<QuarterView*>()->isVisible(), !isQuarter);
        // The keys that turn the pages work while the tabs have the focus.
        tabs->setCurrentIndex(0);
        tabs->setFocus();
        press(window, Qt::Key_PageDown);
        EXPECT_EQ(window.findChild<MonthView*>()->period(), (YearMonth{2026, 12}));
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
