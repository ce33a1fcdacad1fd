// SPDX-License-Identifier: GPL-3.0-or-later
#include "YearView.h"
#include "ContentView.h"
#include "MonthTile.h"
#include "MonthView.h"
#include "RuleLine.h"
#include "ViewTest.h"
#include "YearFigures.h"

#include <QHelpEvent>
#include <QToolTip>

#include <SQLiteCpp/Database.h>

class YearViewTest : public ViewTest {
protected:
    YearViewTest()
    {
        mark(*month(2026, 3), 4, DayState::IN_OFFICE);
        mark(*month(2026, 3), 5, DayState::VACATION_DAY);
        window.resize(540, 900);
        show(window);
        press(window, Qt::Key_3, Qt::ControlModifier);
        year = window.findChild<YearView*>();
    }

    [[nodiscard]] QString nameOf(qsizetype number) const
    {
        return window.findChildren<MonthTile*>().at(number - 1)->accessibleName();
    }
    [[nodiscard]] QString focused() const { return window.focusWidget()->accessibleName().section(u',', 0, 0); }
    [[nodiscard]] bool says(const QString& text) const
    {
        return window.findChild<YearFigures*>()->accessibleName().contains(text);
    }

    ContentView window{parts};
    YearView* year = nullptr;
};

TEST_F(YearViewTest, countsWhatIsStoredAndStoresNothing)
{
    EXPECT_EQ(nameOf(3), u"March 2026, 1 of 22 workdays in office"_s);
    EXPECT_TRUE(says(u"Q1: 1 of 64 workdays in office, 0.08 days per week on average"_s));
    EXPECT_TRUE(says(u"2026: 1 of 261 workdays in office, 0.02"_s));
    settings->vacationDaysCountAsInOffice = true;
    EXPECT_TRUE(says(u"Q1: 2 of 64"_s));
    counting.addDaysOff({{QDate(2026, 3, 2), u"Founding Day"_s}});
    EXPECT_EQ(nameOf(3), u"March 2026, 2 of 21 workdays in office"_s);
    marker.mark({{{2026, 3, 6}, DayState::IN_OFFICE}}, ChangedBy::Check);
    EXPECT_TRUE(eventually([&] { return nameOf(3) == u"March 2026, 3 of 21 workdays in office"_s; }));
    EXPECT_TRUE(history.undo());
    EXPECT_TRUE(eventually([&] { return says(u"Q1: 2 of 63"_s); }));
    press(window, Qt::Key_1, Qt::ControlModifier);
    marker.mark({{{2026, 3, 6}, DayState::IN_OFFICE}}, ChangedBy::Check);
    QCoreApplication::processEvents();
    EXPECT_TRUE(says(u"Q1: 2 of 63"_s)) << "not counted while hidden";
    press(window, Qt::Key_3, Qt::ControlModifier);
    EXPECT_TRUE(says(u"Q1: 3 of 63"_s));
    year->showPeriod({1999, 1});
    EXPECT_EQ(nameOf(2), u"February 1999, 0 of 20 workdays in office"_s);
    EXPECT_TRUE(context.fetchMonths(1999, 2).isEmpty());
    EXPECT_FALSE(context.hasChanges());
}

TEST_F(YearViewTest, keysAndClicksMoveTurnAndOpen)
{
    const std::tuple<YearMonth, Qt::Key, QString> rows[]{
        {{2026, 2}, Qt::Key_Right, u"March 2026"_s},    {{2026, 2}, Qt::Key_Down, u"May 2026"_s},
        {{2026, 2}, Qt::Key_Up, u"November 2025"_s},    {{2026, 12}, Qt::Key_Right, u"January 2027"_s},
        {{2026, 5}, Qt::Key_Home, u"January 2026"_s},   {{2026, 5}, Qt::Key_PageDown, u"May 2027"_s},
        {{1, 1}, Qt::Key_Left, u"January 1"_s},         {{1, 6}, Qt::Key_PageUp, u"June 1"_s},
        {{9999, 12}, Qt::Key_Down, u"December 9999"_s},
    };
    for (const auto& [from, key, to] : rows) {
        year->showDay({from.year, from.month, 1});
        press(window, key);
        EXPECT_EQ(focused(), to);
        EXPECT_EQ(named<QWidget>(*year, "previous").isEnabled(), year->month().year > 1);
        EXPECT_EQ(named<QWidget>(*year, "next").isEnabled(), year->month().year < 9999);
    }
    click(named<QWidget>(*year, "today"));
    EXPECT_EQ(focused(), u"November 2026"_s);
    const std::function<void()> ways[]{[&] { click(*window.findChildren<MonthTile*>().at(1)); },
                                       [&] { press(window, Qt::Key_Space); }, [&] { press(window, Qt::Key_Return); }};
    for (const auto& open : ways) {
        open();
        EXPECT_TRUE(window.findChild<MonthView*>()->isVisible());
        EXPECT_EQ(window.findChild<MonthView*>()->month(), (YearMonth{2026, 2}));
        EXPECT_TRUE(window.focusWidget()->accessibleName().startsWith(u"Sunday 1 February 2026"_s));
        press(window, Qt::Key_3, Qt::ControlModifier);
        EXPECT_EQ(focused(), u"February 2026"_s);
    }
    marker.mark({{{2026, 5, 5}, DayState::IN_OFFICE}}, ChangedBy::Hand);
    year->showPeriod({2020, 1});
    press(window, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(year->month().year, 2026) << "undo turns to the day";
}

TEST_F(YearViewTest, fitsIntoEveryWidth)
{
    viewSettings.selectedTab = 7; // the last
    ContentView only(parts);      // the month needs more
    show(only);
    const auto tiles = only.findChildren<MonthTile*>();
    EXPECT_LT(only.minimumSizeHint().width(), 450);
    for (const auto& [width, columns] : {std::pair(only.minimumSizeHint().width(), 2), {540, 3}, {900, 4}}) {
        only.resize(width, 900);
        const auto inFirstRow = [&] { return std::ranges::count(tiles, tiles.first()->y(), &MonthTile::y); };
        EXPECT_TRUE(eventually([&] { return inFirstRow() == columns; })) << width;
        EXPECT_LE(only.findChild<YearView*>()->width(), width);
    }
}

TEST_F(YearViewTest, aDayHasItsColourWhereItSaysItsDate)
{
    MonthTile* const march = window.findChildren<MonthTile*>().at(2);
    const auto placeOfDay = [&] {
        for (int y = march->height() - 1; y > 0; y -= 3) {
            for (int x = march->width() - 1; x > 0; x -= 3) {
                QHelpEvent event(QEvent::ToolTip, {x, y}, march->mapToGlobal(QPoint(x, y)));
                QCoreApplication::sendEvent(march, &event);
                if (QToolTip::text() == u"Wednesday 4 March 2026, In the Office"_s)
                    return QPoint(x, y);
            }
        }
        return QPoint();
    };
    int left = march->width();
    for (const Qt::DayOfWeek first : {Qt::Sunday, Qt::Monday}) {
        viewSettings.firstDayOfWeek = first;
        const QPoint place = placeOfDay();
        const QPoint inside = place - QPoint(3, 3); // beside the mark
        EXPECT_EQ(march->grab().toImage().pixelColor(inside), themeFor(Look()).inOffice);
        EXPECT_LT(place.x(), left) << "a column further left";
        left = place.x();
    }
}

TEST_F(YearViewTest, showsTheRulesOfTheYear)
{
    AttendanceRule rule{.name = u"Quarterly"_s, .span = AttendanceRule::Span::Quarter};
    counting.addRule(rule);
    rule.name = u"Yearly"_s;
    rule.span = AttendanceRule::Span::Year;
    counting.addRule(rule);
    QStringList outlooks;
    for (const auto* line : year->findChildren<RuleLine*>())
        outlooks.append(line->contents().outlook);
    EXPECT_EQ(outlooks.first(), u"Reached in 0 of 3 quarters"_s);
    EXPECT_EQ(outlooks.size(), 2);
    press(window, Qt::Key_2, Qt::ControlModifier);
    EXPECT_TRUE(year->findChildren<RuleLine*>().isEmpty()) << "not counted while hidden";
}

TEST_F(YearViewTest, aStoreThatCannotBeReadIsReadAgain)
{
    SQLite::Database other(path.toStdString(), SQLite::OPEN_READWRITE);
    other.exec("BEGIN EXCLUSIVE");
    year->showPeriod({2030, 1});
    EXPECT_EQ(shownTexts(*year), QStringList(u"Error loading year!"_s));
    other.exec("ROLLBACK");
    EXPECT_TRUE(eventually([&] { return shownTexts(*year).contains(u"2030"_s); }));
}
