// SPDX-License-Identifier: GPL-3.0-or-later
#include "DayDetails.h"
#include "ContentView.h"
#include "DayNote.h"
#include "HoverLabel.h"
#include "LinkButton.h"
#include "TextArea.h"
#include "ViewTest.h"

using enum DayState;
using testing::Contains;

class DayDetailsTest : public ViewTest {
protected:
    DayDetailsTest() { show(*window); }

    /// Opens the details of the day that has the focus.
    DayDetails& open()
    {
        press(*window, Qt::Key_Return);
        auto* details = qobject_cast<DayDetails*>(QApplication::activePopupWidget());
        if (details == nullptr)
            qFatal("No details");
        return *details;
    }
    void close()
    {
        press(*window, Qt::Key_Escape);
        EXPECT_TRUE(eventually([&] { return window->findChild<DayDetails*>() == nullptr; }));
    }
    [[nodiscard]] QStringList notesOnDisk() const
    {
        ModelContainer reread({.name = {}, .path = path});
        QStringList texts;
        for (const auto& note : reread.mainContext().fetchNotes({1, 1, 1}, {9999, 12, 31}))
            texts += note->text;
        return texts;
    }
    [[nodiscard]] QImage cell() const { return dayButton(*window, 20).grab().toImage(); }

    const std::shared_ptr<Month> november = month(2026, 11);
    const qsizetype friday = *november->indexOf(20);
    std::unique_ptr<ContentView> window = std::make_unique<ContentView>(parts);
};

TEST_F(DayDetailsTest, sayWhoSetADayAndSetItBackAsOneStep)
{
    mark(*november, 20, IN_OFFICE); // as before there was a history
    EXPECT_EQ(open().accessibleDescription(), u"In the Office. Set before changes were recorded"_s);
    close();
    marker.mark(*november, friday, UNKNOWN, MarkedBy::Click);
    clock.advance(std::chrono::hours(1));
    QWidget& details = open();
    EXPECT_EQ(details.accessibleName(), u"Friday, 20 November 2026"_s);
    marker.mark(*november, friday, IN_OFFICE, MarkedBy::Check, u"Head Office"_s); // is seen at once
    EXPECT_EQ(details.accessibleDescription(), u"In the Office. Automatically, 10:00, Head Office"_s);
    const auto setBack = [&] {
        QStringList names;
        for (const auto* button : details.findChildren<LinkButton*>()) {
            if (button->isVisible())
                names += button->accessibleName();
        }
        return names;
    };
    ASSERT_THAT(setBack(), testing::ElementsAre(u"Set back to Unknown. By hand, 09:00"_s));
    clock.advance(std::chrono::hours(1));
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Space})
        press(details, key);
    EXPECT_EQ(details.accessibleDescription(), u"Unknown. Undone, 11:00"_s);
    EXPECT_EQ(marker.mark(*november, friday, IN_OFFICE, MarkedBy::Check), 0);
    EXPECT_THAT(setBack(), Contains(details.focusWidget()->accessibleName()));
    close();
    EXPECT_TRUE(window->focusWidget() == &dayButton(*window, 20));
    EXPECT_TRUE(history.redo());
    EXPECT_EQ(DayMarker::stateOf(*november, friday), IN_OFFICE);
}

TEST_F(DayDetailsTest, aNoteIsSavedAfterAPauseOnClosingAndWithTheWindowAndIsSeenInTheGrid)
{
    const QImage before = cell();
    QWidget* details = &open();
    press(*details, Qt::Key_Tab);
    press(*details, Qt::Key_A);
    EXPECT_TRUE(eventually([&] { return notesOnDisk() == QStringList(u"a"_s); }));
    press(*details, Qt::Key_Return);
    press(*details, Qt::Key_B);
    close();
    EXPECT_EQ(notesOnDisk(), QStringList(u"a\nb"_s));
    const auto spoken = [&] { return window->focusWidget()->accessibleName(); };
    EXPECT_TRUE(eventually([&] { return spoken() == u"Friday 20 November 2026, Unknown, has a note"_s; }));
    EXPECT_TRUE(hasMark(dayButton(*window, 20).grab(dayButton(*window, 20).noteArea()).toImage()));
    moveTo(*window, inWindow(dayButton(*window, 20)));
    const auto& label = *window->findChild<HoverLabel*>();
    EXPECT_GT(label.height(), 2 * label.fontMetrics().height());
    press(*window, Qt::Key_2, Qt::ControlModifier);
    EXPECT_TRUE(spoken().endsWith(u"note"));
    details = &open();
    press(*details, Qt::Key_PageDown); // does not turn the page
    press(*details, Qt::Key_Tab);
    press(*details, Qt::Key_A, Qt::ControlModifier);
    press(*details, Qt::Key_Space);
    close();
    EXPECT_TRUE(eventually([&] { return spoken() == u"Friday 20 November 2026, Unknown"_s; }));
    press(*window, Qt::Key_1, Qt::ControlModifier);
    moveTo(*window, {});
    EXPECT_EQ(notesOnDisk(), QStringList());
    window->setFocus();
    EXPECT_EQ(cell(), before);
    press(*window, Qt::Key_1, Qt::ControlModifier);
    details = &open();
    press(*details, Qt::Key_Tab);
    press(*details, Qt::Key_C);
    window.reset();
    EXPECT_EQ(notesOnDisk(), QStringList(u"c"_s));
}

TEST_F(DayDetailsTest, aKindOfAbsenceIsNamedFromTheMenuAndADayOffInItsDetails)
{
    const auto spoken = [&] { return window->focusWidget()->accessibleName().section(u", "_s, 1); };
    press(*window, Qt::Key_F10, Qt::ShiftModifier);
    for (const Qt::Key key : {Qt::Key_A, Qt::Key_O}) {
        const QWidget* popup = QApplication::activePopupWidget();
        press(*window, key);
        EXPECT_TRUE(eventually([&] { return QApplication::activePopupWidget() != popup; }));
    }
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_C, Qt::Key_Return}) // without a name it stays open
        press(*QApplication::activePopupWidget(), key);
    EXPECT_TRUE(eventually([&] { return spoken() == u"Out of Office (c)"_s; }));
    counting.addDaysOff({{.date = {2026, 11, 20}}});
    EXPECT_TRUE(open().accessibleDescription().startsWith(u"Out of Office (c). By hand"));
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_X})
        press(*window, key);
    close();
    EXPECT_TRUE(eventually([&] { return spoken() == u"Out of Office (c), Day Off: x"_s; }));
}

TEST_F(DayDetailsTest, whileTheStoreCannotBeReadTheMonthIsShownAndNoNoteIsTaken)
{
    QFile store(path);
    ASSERT_TRUE(store.open(QIODevice::Append) && store.putChar('x'));
    store.close();
    press(*window, Qt::Key_1, Qt::ControlModifier);
    press(*window, Qt::Key_Home, Qt::ControlModifier);
    const QWidget& details = open();
    EXPECT_THAT(shownTexts(details), Contains(u"The note of this day cannot be read."_s));
    EXPECT_EQ(details.findChild<TextArea*>(), nullptr);
}
