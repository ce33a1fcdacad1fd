// SPDX-License-Identifier: GPL-3.0-or-later
#include "CalendarView.h"
#include "ContentView.h"
#include "FootLine.h"
#include "MonthView.h"
#include "ViewTest.h"

#include <QScrollArea>
#include <QScrollBar>

class UndoLineTest : public ViewTest {
protected:
    UndoLineTest()
    {
        window.resize(540, 900);
        show(window);
        QApplication::setDoubleClickInterval(0);
    }
    ~UndoLineTest() override { QApplication::setDoubleClickInterval(usualInterval); }

    /// What the line says, empty while there is none.
    [[nodiscard]] QString said() const
    {
        QCoreApplication::processEvents();
        return isShown() ? line()->text() : QString();
    }
    [[nodiscard]] FootLine* line() const { return window.findChild<FootLine*>(); }
    [[nodiscard]] bool isShown() const { return line() != nullptr && line()->isVisible(); }
    void pressKey(int key, Qt::KeyboardModifiers held = {}) { press(window, static_cast<Qt::Key>(key), held); }

    const int usualInterval = QApplication::doubleClickInterval();
    ContentView window{parts};
};

TEST_F(UndoLineTest, saysWhatChangedAndTakesItBackByKeyAndLink)
{
    EXPECT_EQ(line(), nullptr) << "nothing is built before it is wanted";
    const auto undo = [&] { pressKey(Qt::Key_Z, Qt::ControlModifier); };
    const auto redo = [&] { pressKey(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); };
    const auto link = [&] { click(named<QWidget>(window, "footLink")); };
    const auto set = [&](const QList<DayMark>& marks, ChangedBy by) { marker.mark(marks, by); };
    const DayState vacation = DayState::VACATION_DAY, in = DayState::IN_OFFICE;
    const std::pair<std::function<void()>, QString> rows[]{
        {undo, u"Nothing to undo"_s},
        {[&] { pressKey(Qt::Key_4); }, u"Fri 20 November: Vacation Day"_s},
        {redo, u"Nothing to redo"_s},
        {undo, u"Taken back: Fri 20 November is Unknown again"_s},
        {link, u"Set again: Fri 20 November: Vacation Day"_s},
        {link, u"Taken back: Fri 20 November is Unknown again"_s},
        {redo, u"Set again: Fri 20 November: Vacation Day"_s},
        {[&] {
             set({{{2025, 2, 3}, vacation}, {{2025, 2, 4}, vacation}}, ChangedBy::Hand);
         },
         u"2 days: Vacation Day"_s},
        {undo, u"Taken back: 2 days"_s}, // and turns to them
        {[&] {
             set({{{2026, 11, 19}, in}}, ChangedBy::Check);
         },
         u"Marked automatically: Thu 19 November: In the Office"_s},
        {[&] {
             set({{{2026, 11, 17}, in}}, ChangedBy::Check);
             set({{{2025, 11, 18}, vacation}}, ChangedBy::Check);
         },
         u"Marked automatically: Tue 17 November: In the Office, Tue 18 November 2025: Vacation Day"_s},
        {link, u"Taken back: Tue 18 November 2025 is Unknown again, Tue 17 November is Unknown again"_s},
        {[&] {
             set({{{2026, 3, 2}, in}, {{2026, 3, 3}, vacation}}, ChangedBy::Restore);
         },
         u"Restored: 2 days"_s},
    };
    for (const auto& [action, text] : rows) {
        action();
        EXPECT_EQ(said(), text);
        EXPECT_EQ(named<QWidget>(window, "footLink").isVisible(), !text.startsWith(u"Nothing"_s));
    }
    EXPECT_EQ(window.findChild<MonthView*>()->month(), (YearMonth{2025, 2}));
    EXPECT_EQ(window.findChild<CalendarView*>()->focusedDay(), 3);
}

TEST_F(UndoLineTest, isOnlyThereForAsLongAsItIsOfUse)
{
    const auto& day = dayButton(window, 20);
    for (int state = 1; state < 5; ++state) {
        click(day);
        EXPECT_NE(said(), u""_s);
    }
    click(day);
    EXPECT_EQ(said(), u""_s) << "the day is as it was";
    click(day);
    EXPECT_NE(said(), u""_s);
    auto& timer = *line()->findChild<QTimer*>();
    const auto expire = [&] { timer.setInterval(0); };
    moveTo(window, inWindow(*line()));
    EXPECT_FALSE(timer.isActive()) << "under the pointer";
    moveTo(window, {5, 5});
    EXPECT_TRUE(timer.isActive());
    for (int i = 0; i < 20 && !named<QWidget>(window, "footLink").hasFocus(); ++i)
        pressKey(Qt::Key_Tab);
    EXPECT_FALSE(timer.isActive()) << "with the focus";
    pressKey(Qt::Key_Escape);
    EXPECT_EQ(said(), u""_s);
    EXPECT_TRUE(day.hasFocus());
    pressKey(Qt::Key_2);
    expire();
    EXPECT_TRUE(eventually([&] { return !isShown(); }));
}

TEST_F(UndoLineTest, coversNothingAndMovesNothing)
{
    auto& page = *window.findChild<QScrollArea*>();
    auto& bar = *page.verticalScrollBar();
    window.resize(window.minimumSizeHint().width(), 420);
    QCoreApplication::processEvents();
    const auto top = [&] { return page.widget()->mapTo(&window, QPoint()).y(); };
    const int before = top(), range = bar.maximum();
    pressKey(Qt::Key_4);
    EXPECT_NE(said(), u""_s);
    EXPECT_EQ(top(), before);
    EXPECT_TRUE(eventually([&] { return bar.maximum() >= range + line()->height(); })) << "scrolls by as much more";
    bar.setValue(bar.maximum());
    const int scrolled = top();
    line()->dismiss();
    QCoreApplication::processEvents();
    EXPECT_EQ(top(), scrolled);
    bar.setValue(0);
    EXPECT_TRUE(eventually([&] { return bar.maximum() == range; }));

    const auto& cell = dayButton(window, 20); // where the next click goes is left free
    bar.setValue(inWindow(cell).y() - window.height() + 20);
    click(cell);
    EXPECT_NE(said(), u""_s);
    EXPECT_FALSE(line()->geometry().intersects({cell.mapTo(&window, QPoint()), cell.size()}));
}
