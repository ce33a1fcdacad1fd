// SPDX-License-Identifier: GPL-3.0-or-later
#include "CalendarView.h"
#include "MonthView.h"
#include "ViewTest.h"

#include <QMenu>

class OpenDaysTest : public ViewTest {
protected:
    OpenDaysTest() { show(page); }

    /// The line below the grid, empty while there is none.
    [[nodiscard]] QString said() const
    {
        QCoreApplication::processEvents();
        return shownTexts(page).filter(u"unmarked"_s).join(u'|');
    }
    void set(QDate date, DayState state) { marker.mark({{date, state}}, ChangedBy::Hand); }

    const std::shared_ptr<Month> november = month(2026, 11);
    MonthView page{calendarParts};
    const CalendarView& grid = *page.findChild<CalendarView*>();
};

TEST_F(OpenDaysTest, areCountedFromTheFirstMarkedDayToYesterday)
{
    const DayState out = DayState::OUT_OF_OFFICE, planned = DayState::WILL_BE_IN_OFFICE;
    const std::pair<std::function<void()>, int> rows[]{
        {[&] {
             set({2026, 11, 24}, planned);
         },
         0},
        {[&] {
             set({2026, 11, 13}, out);
         },
         4}, // and not the weekend, nor today
        {[&] {
             clock.beginDay({2026, 11, 18});
         },
         2},
        {[&] {
             set({2026, 11, 13}, DayState::UNKNOWN);
         },
         0},
        {[&] { history.undo(); }, 2},
        {[&] {
             set({2026, 11, 16}, planned);
         },
         1},
        {[&] { viewSettings.showUnmarkedWorkdays = false; }, 0},
        {[&] { viewSettings.showUnmarkedWorkdays = true; }, 1},
        {[&] { page.previous(); }, 0},
        {[&] {
             set({2026, 10, 29}, out);
         },
         1},
        {[&] { page.next(); }, 10},
        {[&] {
             counting.addDaysOff({{{2026, 11, 4}}});
         },
         9},
        {[&] {
             counting.setWorkWeek({{2026, 11, 9}, Weekdays(1)});
         },
         5}, // Mondays
    };
    const QPoint place = inWindow(grid);
    for (const auto& [action, count] : rows) {
        action();
        EXPECT_EQ(said(), count == 0   ? QString()
                          : count == 1 ? u"1 past workday is unmarked"_s
                                       : u"%1 past workdays are unmarked"_s.arg(count));
        EXPECT_EQ(inWindow(grid), place);
    }
}

TEST_F(OpenDaysTest, areGoneThroughOneByOneOrSetTogether)
{
    set({2026, 11, 12}, DayState::IN_OFFICE);
    const auto states = [&] {
        QString text;
        for (int day = 12; day <= 20; ++day)
            text += QString::number(static_cast<int>(DayMarker::stateOf(*november, *november->indexOf(day))));
        return text;
    };
    const std::pair<Qt::Key, QString> rows[]{
        {Qt::Key_3, u"120000000"_s},      {Qt::Key_S, u"120000000"_s}, // skips a day
        {Qt::Key_1, u"120000000"_s},      {Qt::Key_4, u"120000300"_s}, // so does "unknown"
        {Qt::Key_Escape, u"120000300"_s}, {Qt::Key_T, u"120022320"_s}, // sets all, as one change
    };
    for (const auto& [key, expected] : rows) {
        if (QApplication::activePopupWidget() == nullptr) {
            EXPECT_NE(said(), u""_s);
            click(named<QWidget>(page, "reviewOpenDays"));
        }
        press(*QApplication::activePopupWidget(), key);
        QCoreApplication::processEvents();
        EXPECT_EQ(states(), expected);
    }
    EXPECT_EQ(grid.focusedDay(), 16);
    EXPECT_EQ(said(), u""_s);
    EXPECT_TRUE(history.undo());
    EXPECT_EQ(states(), u"120000300"_s);
}
