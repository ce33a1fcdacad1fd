// SPDX-License-Identifier: GPL-3.0-or-later
#include "UndoLine.h"
#include "ContentView.h"
#include "FootLine.h"
#include "ViewTest.h"

#include <QScrollArea>
#include <QScrollBar>

#include <SQLiteCpp/Database.h>

class UndoLineTest : public ViewTest {
protected:
    UndoLineTest() { show(window); }

    /// What the line says, empty while there is none.
    [[nodiscard]] QString said()
    {
        QCoreApplication::processEvents();
        line = window.findChild<FootLine*>();
        return line != nullptr && line->isVisible() ? line->text() : QString();
    }

    ContentView window{parts};
    FootLine* line = nullptr;
};

TEST_F(UndoLineTest, saysWhatChangedAndTakesItBackByKeyAndLink)
{
    const auto restore =
        qScopeGuard([usual = QApplication::doubleClickInterval()] { QApplication::setDoubleClickInterval(usual); });
    QApplication::setDoubleClickInterval(0);
    const auto undo = [&] { press(window, Qt::Key_Z, Qt::ControlModifier); };
    const auto redo = [&] { press(window, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); };
    const auto link = [&] { click(named<QWidget>(window, "footLink")); };
    const auto set = [&](const QList<DayMark>& marks, ChangedBy by) { return [=, this] { marker.mark(marks, by); }; };
    const auto absent = [&](int kind) {
        return set({{{2026, 11, 19}, DayState::OUT_OF_OFFICE, kind}}, ChangedBy::Hand);
    };
    const DayState off = DayState::VACATION_DAY;
    const std::pair<std::function<void()>, QString> rows[]{
        {undo, u"Nothing to undo"_s},
        {[&] { press(window, Qt::Key_4); }, u"Fri 20 November: Vacation Day"_s},
        {link, u"Taken back: Fri 20 November is Unknown again"_s},
        {link, u"Set again: Fri 20 November: Vacation Day"_s},
        {redo, u"Nothing to redo"_s},
        {set({{{2026, 11, 19}, off}}, ChangedBy::Check), u"Marked automatically: Thu 19 November: Vacation Day"_s},
        {[&] {
             set({{{2026, 11, 17}, off}}, ChangedBy::Check)(), set({{{2025, 3, 4}, off}}, ChangedBy::Check)();
         },
         u"Marked automatically: Tue 17 November: Vacation Day, Tue 4 March 2025: Vacation Day"_s},
        {link, u"Taken back: Tue 4 March 2025 is Unknown again, Tue 17 November is Unknown again"_s},
        {absent(AbsenceKind::sick), u"Thu 19 November: Out of Office (Sick)"_s},
        {absent(AbsenceKind::none), u"Thu 19 November: Out of Office"_s},
        {undo, u"Taken back: Thu 19 November is Out of Office (Sick) again"_s},
        {set({{{2026, 3, 2}, off}, {{2026, 3, 3}, off}}, ChangedBy::Restore), u"Restored: 2 days"_s},
        {set({{{2025, 2, 3}, off}, {{2025, 2, 4}, off}}, ChangedBy::Hand), u"2 days: Vacation Day"_s},
        {undo, u"Taken back: 2 days"_s},
        {[&] {
             auto& both = *window.findChild<UndoLine*>(); // keys that wait while the program is busy
             both.redo(), both.redo();
         },
         u"Nothing to redo"_s},
        {undo, u"Taken back: 2 days"_s},
        {[&] {
             SQLite::Database(path.toStdString(), SQLite::OPEN_READWRITE).exec("CREATE TABLE others (any)");
             undo();
         },
         u"Another program has changed the data file."_s},
    };
    for (const auto& [action, text] : rows) {
        action();
        EXPECT_EQ(said(), text);
    }
    EXPECT_EQ(window.focusWidget()->accessibleName(), u"Monday 3 February 2025, Unknown"_s) << "turns to them";
}

TEST_F(UndoLineTest, isOnlyThereForAsLongAsItIsOfUse)
{
    auto& day = dayButton(window, 20);
    for (const bool isChanged : {true, true, true, true, false, true}) {
        click(day);
        EXPECT_EQ(said().isEmpty(), !isChanged);
    }
    auto& timer = *line->findChild<QTimer*>();
    for (const bool isOver : {true, false}) {
        moveTo(window, isOver ? inWindow(*line) : QPoint(5, 5));
        EXPECT_EQ(timer.isActive(), !isOver);
    }
    named<QWidget>(window, "footLink").setFocus();
    EXPECT_FALSE(timer.isActive());
    press(window, Qt::Key_Escape);
    EXPECT_EQ(said(), u""_s);
    EXPECT_TRUE(day.hasFocus());
    press(window, Qt::Key_4);
    EXPECT_NE(said(), u""_s);
    timer.setInterval(0);
    EXPECT_TRUE(eventually([&] { return said().isEmpty(); }));
}

TEST_F(UndoLineTest, coversNothingAndMovesNothing)
{
    auto& page = *window.findChild<QScrollArea*>();
    auto& bar = *page.verticalScrollBar();
    auto& cell = dayButton(window, 20);
    const auto top = [&] { return page.widget()->mapTo(&window, QPoint()).y(); };
    window.resize(window.minimumSizeHint().width(), inWindow(cell).y() + 20);
    QCoreApplication::processEvents();
    const int before = top(), range = bar.maximum();
    press(window, Qt::Key_4);
    EXPECT_NE(said(), u""_s);
    EXPECT_FALSE(line->geometry().intersects({cell.mapTo(&window, QPoint()), cell.size()})) << "for the next key";
    EXPECT_EQ(top(), before);
    window.setFocus();
    press(window, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(eventually([&] { return bar.maximum() >= range + line->height(); }));
    bar.setValue(bar.maximum());
    line->dismiss();
    QCoreApplication::processEvents();
    EXPECT_EQ(bar.value(), bar.maximum()) << "no jump";
    EXPECT_GT(bar.value(), range);
    bar.setValue(0);
    EXPECT_TRUE(eventually([&] { return bar.maximum() == range; }));
}
