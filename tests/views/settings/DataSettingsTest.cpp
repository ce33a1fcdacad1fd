// SPDX-License-Identifier: GPL-3.0-or-later
#include "BackupAlert.h"
#include "Button.h"
#include "ContentView.h"
#include "DayNote.h"
#include "LostDataAlert.h"
#include "LostStore.h"
#include "SettingsView.h"
#include "SideTabs.h"
#include "ViewTest.h"

#include <QFileDialog>
#include <QSignalSpy>
#include <QTextEdit>
#include <QTreeView>

#include <fstream>

class DataSettingsTest : public ViewTest {
protected:
    void open()
    {
        view.resize(740, 660);
        show(view);
        view.findChild<SideTabs*>()->setCurrentIndex(4);
    }
    template <class Signal = decltype(&BackupService::made)> void backUp(Signal expected = &BackupService::made)
    {
        const QSignalSpy ended(&backups, expected);
        backups.makeNow();
        EXPECT_TRUE(eventually([&] { return !ended.isEmpty(); }));
    }
    void set(const QDate& date, DayState state) { marker.mark({{date, state}}, ChangedBy::Hand); }
    [[nodiscard]] DayState stateOf(const QDate& date)
    {
        const auto shown = month(date.year(), date.month());
        return shown->days.value().at(*shown->indexOf(date.day())).state;
    }
    [[nodiscard]] bool waitFor(const QString& text) const
    {
        return eventually([&] { return !shownTexts(view).filter(text).isEmpty(); });
    }
    [[nodiscard]] Button& restoreButton() const
    {
        for (auto* button : view.findChildren<Button*>()) {
            if (button->isVisible() && button->accessibleName().startsWith(u"Restore the backup of 20 November 2026"_s))
                return *button;
        }
        qFatal("No backup is shown");
    }

    const QDate october{2026, 10, 30}, november{2026, 11, 19};
    SettingsView view{{*settings, wifiClient, locationManager.defaultValue(), check, launchAtLogin, backups, context,
                       counting, clock, viewSettings}};
};

TEST_F(DataSettingsTest, theChosenMonthsOfABackupAreRestoredAsOneStep)
{
    set(october, DayState::IN_OFFICE);
    static_cast<void>(month(2026, 11)); // or the backup would lack it, and restore none of its days
    open();
    EXPECT_THAT(shownTexts(view), testing::Contains(u"There is no backup yet."_s));
    click(named<Button>(view, "backUp"));
    EXPECT_TRUE(waitFor(u"Backed up at 09:00"_s));
    EXPECT_TRUE(waitFor(u"same as now"_s));
    marker.mark({{october, DayState::OUT_OF_OFFICE, AbsenceKind::sick}}, ChangedBy::Hand);
    set(november, DayState::VACATION_DAY);
    view.hide();
    show(view);
    EXPECT_TRUE(waitFor(u"2 days differ"_s));

    clock.advance(std::chrono::hours(1)); // so that the next backup has another name
    restoreButton().setFocus(Qt::TabFocusReason);
    press(view, Qt::Key_Space);
    EXPECT_TRUE(eventually([this] { return named<Button>(view, "restore").isEnabled(); }));
    auto& tree = named<QTreeView>(view, "days");
    QStringList rows;
    for (QModelIndex row = tree.model()->index(0, 0); row.isValid(); row = tree.indexBelow(row))
        rows.append(row.data().toString());
    EXPECT_EQ(rows, (QStringList{u"All Months"_s, u"October 2026: 1 day"_s,
                                 u"Fri 30 October: Out of Office (Sick) → In the Office"_s, u"November 2026: 1 day"_s,
                                 u"Thu 19 November: Vacation Day → Unknown"_s}));
    press(view, Qt::Key_Space); // none
    EXPECT_FALSE(named<Button>(view, "restore").isEnabled());
    press(view, Qt::Key_Down);
    press(view, Qt::Key_Space); // October
    EXPECT_EQ(tree.model()->index(0, 0).data(Qt::AccessibleTextRole), u"All Months, partly checked"_s);
    EXPECT_EQ(named<Button>(view, "restore").text(), u"Restore 1 Day"_s);
    click(named<Button>(view, "restore"));
    EXPECT_TRUE(waitFor(u"1 day was restored"_s));
    EXPECT_EQ(stateOf(october), DayState::IN_OFFICE);
    EXPECT_EQ(stateOf(november), DayState::VACATION_DAY);
    EXPECT_TRUE(history.undo());
    EXPECT_EQ(stateOf(october), DayState::OUT_OF_OFFICE);

    // The backup that was made before holds what is there again.
    EXPECT_TRUE(waitFor(u"day"_s));
    click(restoreButton());
    EXPECT_TRUE(waitFor(u"There is nothing to restore."_s));
    EXPECT_EQ(named<Button>(view, "cancel").text(), u"Close"_s);
    press(view, Qt::Key_Escape);
    EXPECT_TRUE(view.isVisible()) << "the key closes the page only";
    EXPECT_TRUE(eventually([this] { return view.focusWidget() == &restoreButton(); })); // the list may be read anew
}

TEST_F(DataSettingsTest, daysAreExportedAndImportedAfterAReview)
{
    set(october, DayState::IN_OFFICE);
    open();
    const QString listPath = folder.filePath(u"days.csv"_s);
    QStringList folders;
    const auto choose = [&](const char* button, const char* dialogName, const QString& file) {
        named<Button>(view, button).click(); // wherever it has been scrolled
        auto& dialog = named<QFileDialog>(view, dialogName);
        folders += dialog.directory().path();
        Q_EMIT dialog.fileSelected(file);
        dialog.close();
        QCoreApplication::sendPostedEvents(&dialog, QEvent::DeferredDelete);
    };
    choose("exportDays", "exportFile", listPath);
    EXPECT_TRUE(waitFor(u"1 day written to days.csv."_s));
    choose("exportCalendar", "exportFile", folder.path());
    EXPECT_TRUE(waitFor(u"Nothing was exported. The file cannot be written"_s));
    choose("importDays", "importFile", folder.path());
    EXPECT_TRUE(waitFor(u"Nothing was imported. The file cannot be read: it is a folder or a device."_s));
    EXPECT_EQ(view.focusWidget(), &named<Button>(view, "importDays"));
    choose("importDays", "importFile", listPath);
    EXPECT_TRUE(waitFor(u"There is nothing to import. Marked as in the list already: 1 day."_s));
    EXPECT_FALSE(named<Button>(view, "import").isVisible());
    EXPECT_FALSE(named<QTreeView>(view, "importedDays").isVisible());
    EXPECT_EQ(named<Button>(view, "cancel").text(), u"Close"_s);
    press(view, Qt::Key_Escape);
    EXPECT_EQ(folders.mid(1, 1), QStringList(folder.path()));
    EXPECT_NE(folders.first(), folder.path());

    std::ofstream(listPath.toStdString())
        << "date,state,note\n2026-10-30,VACATION_DAY,\n2026-11-19,IN_OFFICE,New\nX,,\n";
    choose("importDays", "importFile", listPath);
    EXPECT_TRUE(waitFor(u"Days that are marked otherwise here stay as they are"_s));
    const auto& problems = named<QTextEdit>(view, "problems");
    EXPECT_EQ(problems.toPlainText(), u"Line 4 is left out: \"X\" is not a date such as 2026-11-20."_s);
    EXPECT_TRUE(eventually([&] { return problems.viewport()->height() == 2 * problems.document()->size().height(); }))
        << "which shows whole lines";
    EXPECT_EQ(named<Button>(view, "import").text(), u"Import 1 Day"_s);
    EXPECT_EQ(named<QTreeView>(view, "importedDays").model()->index(2, 0).data(),
              u"October 2026: 1 day marked otherwise here"_s);
    click(named<Button>(view, "import"));
    EXPECT_TRUE(waitFor(u"takes back what was marked; notes, days off and kinds of absence stay."_s));
    EXPECT_EQ(stateOf(october), DayState::IN_OFFICE);
    EXPECT_EQ(stateOf(november), DayState::IN_OFFICE);
    EXPECT_EQ(marker.notes().noteOf(november)->text.value(), u"New"_s);
    EXPECT_EQ(backups.folder().backups().size(), 1);
    EXPECT_TRUE(history.undo());
    EXPECT_EQ(stateOf(november), DayState::UNKNOWN);
}

TEST_F(DataSettingsTest, aDamagedBackupIsNotRestored)
{
    backUp();
    const QString file = backups.folder().backups().first().path;
    std::ofstream(file.toStdString()) << "no store";
    open();
    EXPECT_TRUE(waitFor(u"damaged"_s));
    EXPECT_FALSE(restoreButton().isEnabled());
}

TEST_F(DataSettingsTest, aFailedBackupIsSaidUntilOneSucceeds)
{
    ContentView window(parts);
    show(window);
    const QString inTheWay = backups.folder().path();
    std::ofstream(inTheWay.toStdString()) << "in the way";
    backUp(&BackupService::failed);
    auto& card = *window.findChild<BackupAlert*>();
    EXPECT_TRUE(card.isVisible());
    QApplication::processEvents(); // which lays it out
    click(named<Button>(window, "closeBackupAlert"));
    EXPECT_FALSE(card.isVisible());
    open();
    EXPECT_TRUE(waitFor(u". Pellory tries again."_s));
    QFile::remove(inTheWay);
    backUp();
    EXPECT_TRUE(shownTexts(view).filter(u"failed"_s).isEmpty());
    QDir(inTheWay).removeRecursively();
    std::ofstream(inTheWay.toStdString()) << "in the way";
    backUp(&BackupService::failed);
    EXPECT_TRUE(card.isVisible()) << "it is another failure";
}

TEST_F(DataSettingsTest, theListTurnsByKeyAndMakesRoomForThePage)
{
    show(view);
    auto& tabs = *view.findChild<SideTabs*>();
    tabs.setFocus();
    const std::tuple<Qt::Key, Qt::KeyboardModifiers, int> rows[]{{Qt::Key_Up, {}, 0},
                                                                 {Qt::Key_Down, {}, 1},
                                                                 {Qt::Key_End, {}, 4},
                                                                 {Qt::Key_Down, {}, 4},
                                                                 {Qt::Key_PageDown, Qt::ControlModifier, 0},
                                                                 {Qt::Key_PageUp, Qt::ControlModifier, 4}};
    for (const auto& [key, held, page] : rows) {
        press(view, key, held);
        EXPECT_EQ(tabs.currentIndex(), page) << key;
    }
    view.resize(1000, 600);
    const int wide = tabs.width();
    view.setMinimumSize(1, 1);
    view.resize(view.width() / 3, 600);
    EXPECT_TRUE(eventually([&] { return tabs.width() < wide / 2; }));
    EXPECT_EQ(tabs.tabToolTip(2), u"Office Networks"_s);
    view.resize(1000, 600);
    EXPECT_TRUE(eventually([&] { return tabs.width() == wide; }));
}

TEST_F(DataSettingsTest, aLostStoreIsReplacedAfterAsking)
{
    set(october, DayState::IN_OFFICE);
    set(november, DayState::VACATION_DAY);
    backUp();
    LostDataAlert alert(backups, LostStore::Deleted, backups.folder().backups().first());
    show(alert);
    EXPECT_THAT(shownTexts(alert), testing::Contains(u"A backup of 20 November 2026, 09:00 can be brought back."_s));
    const QSignalSpy replaced(&backups, &BackupService::storeReplaced);
    click(named<Button>(alert, "restoreBackup"));
    EXPECT_TRUE(eventually([&] { return !shownTexts(alert).filter(u"2 marked days in 2 months"_s).isEmpty(); }));
    EXPECT_TRUE(replaced.isEmpty());
    click(named<Button>(alert, "restoreBackup"));
    EXPECT_TRUE(eventually([&] { return !replaced.isEmpty(); }));
}
