// SPDX-License-Identifier: GPL-3.0-or-later
#include "CalendarView.h"
#include "MonthView.h"
#include "StatusPicker.h"
#include "ViewTest.h"

class OpenDaysTest : public ViewTest {
protected:
    OpenDaysTest() { show(page); }

    /// The line below the grid, empty while there is none.
    [[nodiscard]] QString said() const
    {
        QCoreApplication::processEvents();
        return shownTexts(page).filter(u"unmarked"_s).join(u'|');
    }
    void set(QDate date, DayState state = DayState::OUT_OF_OFFICE) { marker.mark({{date, state}}, ChangedBy::Hand); }
    [[nodiscard]] QString states(int from, int to)
    {
        QString text;
        for (int day = from; day <= to; ++day)
            text += QString::number(static_cast<int>(DayMarker::stateOf(*november, *november->indexOf(day))));
        return text;
    }
    static void choose(Qt::Key key)
    {
        press(*QApplication::activePopupWidget(), key);
        QCoreApplication::processEvents();
    }
    void review()
    {
        EXPECT_NE(said(), u""_s);
        click(named<QWidget>(page, "reviewOpenDays"));
    }

    const std::shared_ptr<Month> november = month(2026, 11);
    MonthView page{marker, *settings, viewSettings, clock};
};

TEST_F(OpenDaysTest, areCountedFromTheFirstMarkedDayToYesterday)
{
    const QString none, one = u"1 past workday is unmarked"_s, two = u"2 past workdays are unmarked"_s,
                        four = u"4 past workdays are unmarked"_s;
    const std::pair<std::function<void()>, QString> rows[]{
        {[] {}, none},
        {[&] {
             set({2026, 11, 24}, DayState::WILL_BE_IN_OFFICE);
         },
         none},
        {[&] {
             set({2026, 11, 13});
         },
         four}, // and not the weekend, nor today
        {[&] {
             clock.beginDay({2026, 11, 18});
         },
         two},
        {[&] {
             set({2026, 11, 13}, DayState::UNKNOWN);
         },
         none},
        {[&] { history.undo(); }, two},
        {[&] {
             set({2026, 11, 16}, DayState::WILL_BE_IN_OFFICE);
         },
         one},
        {[&] { viewSettings.showUnmarkedWorkdays = false; }, none},
        {[&] { viewSettings.showUnmarkedWorkdays = true; }, one},
        {[&] { page.previous(); }, none},
        {[&] {
             set({2026, 10, 29});
         },
         one},
        {[&] { page.next(); }, u"10 past workdays are unmarked"_s},
    };
    for (const auto& [action, text] : rows) {
        const QWidget& grid = *page.findChild<CalendarView*>();
        const QPoint place = inWindow(grid);
        action();
        EXPECT_EQ(said(), text) << &action - &rows[0].first;
        EXPECT_EQ(inWindow(grid), place);
    }
    // As after a start.
    EXPECT_EQ(ModelContainer({.name = {}, .path = path}).mainContext().firstMarkedDay(), QDate(2026, 10, 29));
}

TEST_F(OpenDaysTest, areGoneThroughOneByOneOrSetTogether)
{
    set({2026, 11, 12});
    review();
    const auto& calendar = *page.findChild<CalendarView*>();
    const std::tuple<int, Qt::Key, QString> rows[]{
        {13, Qt::Key_3, u"220000"_s},
        {16, Qt::Key_S, u"220000"_s}, // skips the day
        {17, Qt::Key_1, u"220000"_s}, // and so does "unknown"
        {18, Qt::Key_4, u"220003"_s},
    };
    for (const auto& [day, key, expected] : rows) {
        ASSERT_NE(QApplication::activePopupWidget(), nullptr);
        EXPECT_EQ(calendar.focusedDay(), day);
        choose(key);
        EXPECT_EQ(states(12, 13) + states(15, 18), expected);
    }
    choose(Qt::Key_Escape); // at the last day
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(said(), u"3 past workdays are unmarked"_s);
    review();
    const auto entries = qobject_cast<StatusPicker*>(QApplication::activePopupWidget())->actions();
    EXPECT_EQ(entries.at(9)->text().remove(u'&'), u"Set All 3 to Out of Office"_s);
    entries.at(9)->trigger();
    choose(Qt::Key_Escape);
    EXPECT_EQ(states(16, 20), u"22320"_s);
    EXPECT_EQ(said(), u""_s);
    EXPECT_TRUE(history.undo());
    EXPECT_EQ(states(16, 19), u"0030"_s);
    EXPECT_EQ(said(), u"3 past workdays are unmarked"_s);
}
