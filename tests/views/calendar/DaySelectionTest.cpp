// SPDX-License-Identifier: GPL-3.0-or-later
#include "CalendarView.h"
#include "Eventually.h"
#include "MonthView.h"
#include "QuarterView.h"
#include "ViewTest.h"

#include <QMenu>
#include <QScrollArea>
#include <QScrollBar>

using enum Qt::Key;

/// Each test begins on Monday 16 November 2026.
class DaySelectionTest : public ViewTest {
protected:
    void begin(CalendarPage& shown)
    {
        page = &shown;
        show(shown);
        shown.showDay({2026, 11, 16});
    }
    [[nodiscard]] QPoint place(int number, int day) const
    {
        const auto grids = page->findChildren<CalendarView*>();
        const auto isOfMonth = [&](const CalendarView* grid) { return grid->month()->month == number; };
        return inWindow(dayButton(**std::ranges::find_if(grids, isOfMonth), day));
    }
    void press(Qt::Key key, Qt::KeyboardModifiers held = {}) const { ::press(*page, key, held); }
    void drag(const QList<QPoint>& way, const std::function<void()>& meanwhile, Qt::KeyboardModifiers held = {}) const
    {
        QTest::mousePress(page->windowHandle(), Qt::LeftButton, held, way.first());
        for (const QPoint& step : way)
            moveTo(*page, step);
        meanwhile();
        moveTo(*page, way.last() + QPoint(2, 2));
        QTest::mouseRelease(page->windowHandle(), Qt::LeftButton, held, way.last());
    }
    /// Expects the menu of several days, or none if the title is empty, and sets them.
    void expectMenu(const QString& title, const QString& changed)
    {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_EQ(menu != nullptr ? menu->actions().first()->text() : QString(), title);
        if (menu != nullptr)
            ::press(*menu, Key_4);
        EXPECT_EQ(days(DayState::VACATION_DAY), changed);
        EXPECT_TRUE(changed.isEmpty() || history.undo());
        EXPECT_EQ(days(DayState::VACATION_DAY), QString());
    }
    /// The days that have a state, in order.
    [[nodiscard]] QString days(DayState state)
    {
        QStringList found;
        for (QDate date(2026, 10, 1); date.year() < 2027; date = date.addDays(1)) {
            const auto shown = month(2026, date.month());
            if (DayMarker::stateOf(*shown, *shown->indexOf(date.day())) == state)
                found += date.toString(u"M.d"_s);
        }
        return found.join(u' ');
    }

    MonthView monthPage{calendarParts};
    QuarterView quarterPage{calendarParts};
    CalendarPage* page = &monthPage;
};

TEST_F(DaySelectionTest, keysSelectDaysWhoseWorkdaysAreSetAsOneChange)
{
    const Qt::KeyboardModifiers none, shift = Qt::ShiftModifier;
    const std::tuple<CalendarPage*, QList<QKeyCombination>, QString, QString> rows[]{
        {&monthPage,
         {shift | Key_Down, shift | Key_Left, none | Key_Space},
         u"Set 5 Workdays"_s,
         u"11.16 11.17 11.18 11.19 11.20"_s},
        {&monthPage, {shift | Key_Left, shift | Key_Left, none | Key_Return}, u"Set 1 Workday"_s, u"11.16"_s},
        {&monthPage, {none | Key_Left, shift | Key_Left, shift | Key_F10}, u"Set 2 Days"_s, u"11.14 11.15"_s},
        {&monthPage,
         {none | Key_End, shift | Key_Right, shift | Key_Right, none | Key_Space},
         u"Set 3 Workdays"_s,
         u"11.30 12.1 12.2"_s}, // the page has turned
        {&quarterPage,
         {none | Key_Home, none | Key_Right, shift | Key_Up, none | Key_Space},
         u"Set 6 Workdays"_s,
         u"10.26 10.27 10.28 10.29 10.30 11.2"_s},
        {&quarterPage,
         {none | Key_Home, none | Key_Up, Qt::CTRL | Key_A, none | Key_4},
         {},
         u"10.1 10.2 10.5 10.6 10.7 10.8 10.9 10.12 10.13 10.14 10.15 10.16 10.19 10.20 10.21 10.22 10.23 10.26 10.27 "
         "10.28 10.29 10.30"_s},
        // These drop the selection.
        {&monthPage, {shift | Key_Right, none | Key_Escape, none | Key_4}, {}, u"11.17"_s},
        {&monthPage, {shift | Key_Right, shift | Key_Left, none | Key_4}, {}, u"11.16"_s},
        {&monthPage, {shift | Key_Right, none | Key_Right, none | Key_4}, {}, u"11.18"_s},
        {&monthPage, {shift | Key_Right, none | Key_PageUp, none | Key_4}, {}, u"10.17"_s},
    };
    for (const auto& [shown, keys, title, changed] : rows) {
        SCOPED_TRACE(changed.toStdString());
        begin(*shown);
        for (const QKeyCombination& key : keys)
            press(key.key(), key.keyboardModifiers());
        expectMenu(title, changed);
        press(Key_Escape);
    }
    // A second digit takes the place of the first, and the menu has kinds of absence.
    begin(monthPage);
    page->setLayoutDirection(Qt::RightToLeft);
    press(Key_Left, shift);
    for (const Qt::Key key : {Key_2, Key_3})
        press(key);
    press(Key_F10, shift);
    EXPECT_TRUE(qobject_cast<QMenu*>(QApplication::activePopupWidget())->actions().at(3)->isChecked());
    for (const Qt::Key key : {Key_A, Key_S})
        press(key);
    EXPECT_EQ(days(DayState::OUT_OF_OFFICE), u"11.16 11.17"_s);
    EXPECT_EQ(counting.counting().value().absenceKind({2026, 11, 17}), counting.absenceKinds().first().id);
}

TEST_F(DaySelectionTest, draggingAtAnEdgeScrolls)
{
    QScrollArea area;
    area.setWidget(&quarterPage);
    area.resize(quarterPage.width() + 20, 700);
    show(area);
    page = &quarterPage;
    page->showDay({2026, 12, 7});
    area.verticalScrollBar()->setValue(area.verticalScrollBar()->maximum());
    QTest::mousePress(area.windowHandle(), Qt::LeftButton, {}, place(12, 7));
    const QPoint top(place(12, 7).x(), -80);
    const auto* october = page->findChild<CalendarView*>();
    ASSERT_LT(october->mapTo(&area, QPoint()).y(), 0);
    moveTo(area, top);
    EXPECT_TRUE(eventually([&] { return october->mapTo(&area, QPoint()).y() >= 0; }));
    QTest::mouseRelease(area.windowHandle(), Qt::LeftButton, {}, top);
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(QApplication::activePopupWidget()->accessibleName(), u"Set 48 Workdays"_s);
    press(Key_Escape);
    area.takeWidget();
}

TEST_F(DaySelectionTest, draggingSelectsDaysAndReleasingOpensTheMenu)
{
    begin(monthPage);
    const QPoint monday = place(11, 16), friday = place(11, 20), last = place(11, 30);
    const auto nothing = [] {};
    const std::tuple<QList<QPoint>, std::function<void()>, QString, QString> rows[]{
        {{monday, friday}, nothing, u"Set 5 Workdays"_s, u"11.16 11.17 11.18 11.19 11.20"_s},
        {{friday, last, place(11, 19)}, nothing, u"Set 2 Workdays"_s, u"11.19 11.20"_s},
        {{place(11, 21), place(11, 22)}, nothing, u"Set 2 Days"_s, u"11.21 11.22"_s},
        {{place(11, 19), friday + QPoint(200, 0)}, nothing, u"Set 2 Workdays"_s, u"11.19 11.20"_s},
        {{place(11, 26), last + QPoint(100, 0)}, nothing, u"Set 3 Workdays"_s, u"11.26 11.27 11.30"_s}, // a filler
        {{monday, friday, monday}, nothing, {}, {}}, // which is no click either
        {{monday, friday}, [&] { press(Key_Escape); }, {}, {}},
        {{monday, friday}, [&] { page->next(); }, {}, {}},
        {{monday, friday},
         [&] {
             clock.beginDay({2026, 12, 1});
         },
         {},
         {}},
    };
    for (const auto& [way, meanwhile, title, changed] : rows) {
        SCOPED_TRACE(&title - &std::get<2>(rows[0]));
        begin(monthPage);
        drag(way, meanwhile, Qt::ShiftModifier);
        expectMenu(title, changed);
    }
    EXPECT_EQ(days(DayState::IN_OFFICE), QString());
    for (const auto& [hit, title] : {std::pair(friday, u"Set 5 Workdays"_s), {last, u"&Unknown"_s}}) {
        drag({monday, friday}, nothing);
        press(Key_Escape); // closes the menu
        QCursor::setPos(page->mapToGlobal(hit));
        QTest::mouseClick(page->windowHandle(), Qt::RightButton, {}, hit);
        ASSERT_NE(QApplication::activePopupWidget(), nullptr);
        EXPECT_EQ(qobject_cast<QMenu*>(QApplication::activePopupWidget())->actions().first()->text(), title);
        press(Key_Escape);
    }
    begin(quarterPage);
    drag({place(10, 30), place(12, 1)}, nothing);
    EXPECT_EQ(qobject_cast<QMenu*>(QApplication::activePopupWidget())->accessibleName(), u"Set 23 Workdays"_s);
}
