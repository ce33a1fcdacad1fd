// SPDX-License-Identifier: GPL-3.0-or-later
#include "CalendarView.h"
#include "MarkedProgressBar.h"
#include "MonthCard.h"
#include "MonthView.h"
#include "QuarterView.h"
#include "SpokenGroup.h"
#include "ViewTest.h"

#include <SQLiteCpp/Database.h>

class PagesTest : public ViewTest {
protected:
    PagesTest()
    {
        show(monthPage);
        show(quarterPage);
    }

    MonthView monthPage{calendarParts};
    QuarterView quarterPage{calendarParts};
    CalendarPage* const pages[2]{&monthPage, &quarterPage};
};

TEST_F(PagesTest, keysKeepTheDayAndCrossTheEndsOfAPeriod)
{
    const std::tuple<CalendarPage&, QDate, Qt::Key, QDate> rows[]{
        {monthPage, {2026, 1, 31}, Qt::Key_PageDown, {2026, 2, 28}},
        {monthPage, {2026, 2, 28}, Qt::Key_PageDown, {2026, 3, 31}},
        {monthPage, {2026, 1, 3}, Qt::Key_Up, {2025, 12, 27}},
        {monthPage, {1, 1, 1}, Qt::Key_Left, {1, 1, 1}},
        {quarterPage, {2026, 5, 31}, Qt::Key_PageUp, {2026, 2, 28}},
        {quarterPage, {2026, 5, 31}, Qt::Key_Right, {2026, 6, 1}},
        {quarterPage, {9999, 12, 31}, Qt::Key_Right, {9999, 12, 31}},
    };
    for (const auto& [page, from, key, to] : rows) {
        SCOPED_TRACE(from.toString(Qt::ISODate).toStdString());
        show(page);
        page.showDay(from); // which changes nothing if the day before led there
        press(page, key);
        QList<QDate> focused;
        for (const auto* calendar : page.findChildren<CalendarView*>()) {
            if (calendar->focusedDay() > 0)
                focused.append({calendar->month()->year, calendar->month()->month, calendar->focusedDay()});
        }
        EXPECT_EQ(focused, QList({to}));
        EXPECT_EQ(named<QWidget>(page, "previous").isEnabled(), to.year() > 1);
        EXPECT_EQ(named<QWidget>(page, "next").isEnabled(), to.year() < 9999);
    }
}

TEST_F(PagesTest, leadBackToTodayAndMoveOnWithIt)
{
    for (CalendarPage* page : pages) {
        show(*page);
        const auto& link = named<QWidget>(*page, "today");
        EXPECT_FALSE(link.isVisible());
        page->showPeriod({2024, 2});
        EXPECT_TRUE(link.isVisible());
        click(link);
        EXPECT_FALSE(link.isVisible());
        EXPECT_EQ(page->month(), (YearMonth{2026, 11}));
    }
    clock.beginDay({2027, 1, 1});
    EXPECT_EQ(monthPage.month(), (YearMonth{2027, 1}));
    EXPECT_EQ(quarterPage.month(), (YearMonth{2027, 1}));
    quarterPage.next();
    clock.beginDay({2027, 2, 1});
    EXPECT_EQ(monthPage.month(), (YearMonth{2027, 2}));
    EXPECT_EQ(quarterPage.month(), (YearMonth{2027, 4})) << "not left open on the current quarter";
}

TEST_F(PagesTest, aClickOnTheNavigationShowsNoFocus)
{
    const auto isRinged = [](CommandClickableButton& day) {
        const QImage image = day.grab().toImage();
        const auto isAccent = [&](int y) { return image.pixelColor(image.width() / 2, y) == themeFor(Look()).accent; };
        return isAccent(0) || isAccent(1);
    };
    for (CalendarPage* page : pages) {
        page->showPeriod({2026, 7});
        show(*page);
        named<QWidget>(*page, "previous").setFocus();
        page->showDay({2026, 7, 1});
        EXPECT_TRUE(isRinged(dayButton(*page, 1)));
        click(dayButton(*page, 15));
        click(named<QWidget>(*page, "next"));
        EXPECT_TRUE(dayButton(*page, 15).hasFocus());
        EXPECT_FALSE(isRinged(dayButton(*page, 15)));
    }
}

TEST_F(PagesTest, noMarkNoGoalAndNoTurnMovesWhatIsClicked)
{
    const auto places = [this] {
        QCoreApplication::processEvents();
        QList<QRect> found;
        for (const QWidget* page : pages) {
            for (const auto* button : page->findChildren<QAbstractButton*>())
                found.append({button->mapTo(page, QPoint()), button->size()});
        }
        return found;
    };
    const auto before = places();
    const auto cards = monthPage.findChildren<TrackerCard*>();
    EXPECT_LT(monthPage.findChild<MonthCard*>()->y(), cards.last()->y()) << "the quarter is below the grid";
    auto& goals = settings->daysPerWeekGoals;
    const QString longName = u"as many words as fit on no two lines "_s.repeated(9);
    const std::function<void()> changes[]{
        [&] { mark(*month(2026, 11), 20, DayState::IN_OFFICE); },
        [&] { month(2026, 11)->name = longName; },
        [&] { goals.value().first()->desc = longName; },
        [&] { goals.value().last()->desc = longName; },
        [&] { mark(*month(2026, 11), 19, DayState::VACATION_DAY); },
        [&] {
            goals = goals.value() + AppSettings::Goals{Goal::create(u"2"_s, {}), Goal::create(u"2.1"_s, {})};
        },
        [&] { goals.value().last()->wantedDaysPerWeek = u"x"_s; },
        [&] { goals = AppSettings::Goals(); },
    };
    for (const auto& change : changes) {
        change();
        EXPECT_TRUE(places() == before) << &change - changes;
    }
    for (int turn = 0; turn < 12; ++turn) {
        monthPage.next();
        quarterPage.next();
        EXPECT_TRUE(places() == before) << turn;
    }
}

TEST_F(PagesTest, showWhatIsSwitchedOn)
{
    // On each page: the trackers of a month, those of a quarter, and bars.
    const std::tuple<QProperty<bool>*, QList<qsizetype>> rows[]{
        {&viewSettings.showStatusLabelOnHover, {1, 1, 2, 3, 1, 4}}, // which is something else
        {&viewSettings.showMonthStats, {0, 1, 1, 0, 1, 1}},
        {&viewSettings.showQuarterStats, {1, 0, 1, 3, 0, 3}},
        {&viewSettings.showProgressBars, {1, 1, 0, 3, 1, 0}},
    };
    for (const auto& [setting, counts] : rows) {
        *setting = false;
        QList<qsizetype> found;
        for (const QWidget* page : pages) {
            for (const auto& text : {u"0 days in the office this month"_s, u"0 days in the office this quarter"_s})
                found.append(shownTexts(*page).count(text));
            found.append(std::ranges::count_if(page->findChildren<MarkedProgressBar*>(), &QWidget::isVisible));
        }
        EXPECT_EQ(found, counts);
        *setting = true;
    }
    EXPECT_THAT(shownTexts(quarterPage), testing::IsSupersetOf({u"Q4"_s, u"66 workdays"_s, u"21 workdays"_s}));
    EXPECT_EQ(ModelContainer({.name = {}, .path = path}).mainContext().fetchMonths().size(), 3) << "made once";
    mark(*month(2026, 12), 24, DayState::IN_OFFICE);
    EXPECT_THAT(shownTexts(monthPage), testing::Contains(u"1 days in the office this quarter"_s));
    quarterPage.showPeriod({2027, 1});
    EXPECT_THAT(shownTexts(quarterPage), testing::Contains(u"Q1 2027"_s));
}

TEST_F(PagesTest, aStoreThatCannotBeReadIsReadAgainAndNothingIsMadeMeanwhile)
{
    SQLite::Database other(path.toStdString(), SQLite::OPEN_READWRITE);
    other.exec("BEGIN EXCLUSIVE");
    monthPage.showPeriod({2030, 1});
    quarterPage.showPeriod({2030, 1});
    for (const QWidget* page : pages)
        EXPECT_EQ(shownTexts(*page), QStringList(u"Error loading month!"_s));
    EXPECT_FALSE(context.hasChanges());
    other.exec("ROLLBACK");
    EXPECT_TRUE(eventually([&] { return shownTexts(monthPage).contains(u"January 2030"_s); })) << "by itself";
}
