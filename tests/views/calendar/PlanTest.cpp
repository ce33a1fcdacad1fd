// SPDX-License-Identifier: GPL-3.0-or-later
#include "Button.h"
#include "ContentView.h"
#include "MarkedTextLabel.h"
#include "Page.h"
#include "PlanGrid.h"
#include "PlanHead.h"
#include "PlanPopover.h"
#include "RuleLine.h"
#include "SettingsView.h"
#include "Switch.h"
#include "ViewTest.h"
#include "WeekdayButtons.h"

#include <QAccessible>
#include <QMenu>
#include <QSignalSpy>

#include <algorithm>

class PlanTest : public ViewTest {
protected:
    PlanTest()
    {
        clock.beginDay({2026, 11, 23}); // a Monday, with four goal days to plan in six workdays
        for (const int day : {2, 3, 4, 5, 6})
            marker.mark({{{2026, 11, day}, DayState::IN_OFFICE}}, ChangedBy::Hand);
        show(*window);
    }

    [[nodiscard]] static PlanPopover& plan()
    {
        auto* popover = qobject_cast<PlanPopover*>(QApplication::activePopupWidget());
        if (popover == nullptr)
            qFatal("No plan");
        return *popover;
    }
    [[nodiscard]] static QAbstractButton& day(const char* name)
    {
        for (auto* button : plan().findChildren<QAbstractButton*>()) {
            if (button->accessibleName().startsWith(QLatin1StringView(name)))
                return *button;
        }
        qFatal("There is no %s", name);
    }
    [[nodiscard]] static QString pace() { return named<QLabel>(plan(), "pace").text(); }
    [[nodiscard]] QList<int> planned()
    {
        QList<int> days;
        for (const Day& each : month(2026, 11)->days.value()) {
            if (each.state == DayState::WILL_BE_IN_OFFICE)
                days.append(int(each.id));
        }
        return days;
    }
    void choose(const QString& entry)
    {
        click(named<QAbstractButton>(*window, "menu"));
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        for (QAction* action : menu->actions()) {
            if (action->text() == entry)
                action->trigger();
        }
        menu->close();
    }

    std::unique_ptr<ContentView> window = std::make_unique<ContentView>(parts);
};

TEST_F(PlanTest, followsTheDaysThatAreTriedAndStoresThemOnlyWhenApplied)
{
    counting.addRule({.name = u"Ten"_s, .amount = 1000, .unit = AttendanceRule::Unit::Days});
    counting.setUsualWeek({Weekdays(0b1010), false});
    auto& goal = named<QLabel>(*window, "goal");
    click(goal);
    EXPECT_EQ(plan().accessibleName(), u"Plan until 30 November 2026"_s);
    EXPECT_EQ(plan().findChildren<RuleLine*>().first()->accessibleName(),
              u"not fired: 5 of 9 days. 4 more by 30 November, 6 workdays left"_s);
    EXPECT_EQ(pace(), u"4 of the 6 free workdays left: about 3 a week"_s);
    const QPoint place = day("Tuesday 24").mapTo(&plan(), QPoint());
    click(day("Tuesday 24"));
    EXPECT_EQ(pace(), u"3 of the 5 free workdays left: about 2 a week"_s);
    auto& fill = named<Button>(plan(), "fill");
    EXPECT_EQ(fill.toolTip(), QString());
    click(fill); // Tuesday and Thursday
    EXPECT_EQ(fill.toolTip(), u"None of your usual days is left to plan"_s);
    EXPECT_EQ(pace(), u"2 of the 4 free workdays left: about 2 a week"_s);
    EXPECT_EQ(day("Tuesday 24").mapTo(&plan(), QPoint()), place);
    press(plan(), Qt::Key_Escape);
    EXPECT_EQ(planned(), QList<int>());
    EXPECT_TRUE(eventually([&] { return window->findChild<PlanPopover*>() == nullptr; }));

    window->findChild<RuleLine*>()->setFocus();
    press(*window, Qt::Key_Return);
    EXPECT_EQ(pace(), u"5 of the 6 free workdays left: about 4 a week"_s);
    EXPECT_FALSE(named<Button>(plan(), "apply").isEnabled());
    day("Monday 23").setFocus();
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Space, Qt::Key_Left, Qt::Key_Down, Qt::Key_Space})
        press(plan(), key);
    marker.mark({{{2026, 11, 24}, DayState::VACATION_DAY}}, ChangedBy::Hand); // another hand was faster
    QCoreApplication::processEvents();
    EXPECT_EQ(pace(), u"4 of the 4 free workdays left"_s);
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Return}) // past the other button below the days
        press(plan(), key);
    EXPECT_EQ(planned(), QList{30});
    EXPECT_TRUE(history.undo());
    EXPECT_EQ(planned(), QList<int>());
}

TEST_F(PlanTest, namesTheMonthsOfAQuarter)
{
    window->resize(534, 900);
    click(*window->findChildren<QLabel*>("goal"_L1).last());
    const auto top = [](const QWidget& widget) { return widget.mapTo(&plan(), QPoint()).y(); };
    const auto lines = plan().findChildren<RuleLine*>();
    auto& paceLabel = named<QLabel>(plan(), "pace");
    EXPECT_TRUE(top(*lines.at(0)) < top(paceLabel) && top(paceLabel) < top(*lines.at(1))) << "it is about the first";
    EXPECT_EQ(shownTexts(plan()).filter(u"ember"_s).mid(1), (QStringList{u"November"_s, u"December"_s}));
    // The heads stay above the weeks that are scrolled.
    auto& head = *plan().findChild<PlanHead*>();
    EXPECT_FALSE(plan().findChild<Page*>()->isAncestorOf(&head));
    const auto place = [](const QWidget* widget) { return widget->parent()->children().indexOf(widget); };
    EXPECT_TRUE(std::ranges::is_sorted(QList<QWidget*>{lines.at(0), &paceLabel, lines.at(1), &head}, {}, place))
        << "as a screen reader reads it";
    const PlanGrid::Column tuesday = plan().findChild<PlanGrid*>()->columns().at(2);
    EXPECT_EQ(tuesday.name, u"Tue"_s);
    EXPECT_EQ(head.mapTo(&plan(), QPoint(tuesday.centre, 0)).x(),
              day("Tuesday 1 December").mapTo(&plan(), day("Tuesday 1 December").rect().center()).x());
}

TEST_F(PlanTest, aLineThatCanBePressedIsAButtonToScreenReaders)
{
    RuleLine line;
    const auto role = [&line] { return QAccessible::queryAccessibleInterface(&line)->role(); };
    EXPECT_EQ(role(), QAccessible::StaticText);
    line.setPressable(&line);
    EXPECT_EQ(role(), QAccessible::PushButton);
}

TEST_F(PlanTest, usualWeekIsChosenInTheSettingsAndPlannedFromTheMenu)
{
    const QSignalSpy wanted(window.get(), &ContentView::usualWeekRequested);
    choose(u"Plan Usual Week…"_s);
    EXPECT_EQ(wanted.size(), 1);
    SettingsView view({*settings, wifiClient, locationManager.defaultValue(), check, launchAtLogin, backups, context,
                       counting, clock, viewSettings});
    show(view);
    view.showUsualWeek();
    auto& plansNewMonths = named<Switch>(view, "plansNewMonths");
    EXPECT_TRUE(
        eventually([&] { return named<WeekdayButtons>(view, "usualWeekdays").isAncestorOf(view.focusWidget()); }));
    EXPECT_FALSE(plansNewMonths.isEnabled());
    static_cast<QAbstractButton*>(view.focusWidget())->toggle(); // as assistive technology does
    EXPECT_TRUE(plansNewMonths.isEnabled());
    plansNewMonths.toggle();
    EXPECT_EQ(counting.usualWeek(), (UsualWeek{Weekdays(0b1), true}));
    counting.setUsualWeek({Weekdays(0b1001), true});
    EXPECT_TRUE(plansNewMonths.isChecked());
    window->activateWindow();
    choose(u"Plan Usual Week"_s);
    EXPECT_EQ(planned(), (QList{23, 26, 30}));
    EXPECT_TRUE(eventually([&] { return shownTexts(*window).contains(u"Plan changed: 3 days"_s); }));
    choose(u"Plan Usual Week"_s);
    EXPECT_TRUE(shownTexts(*window).contains(u"None of your usual days is left to plan in this month"_s));
    for (int turns = 0; turns < 2; ++turns)
        press(*window, Qt::Key_PageDown);
    EXPECT_EQ(std::ranges::count(month(2027, 1)->days.value(), DayState::WILL_BE_IN_OFFICE, &Day::state), 8);
}
