// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecordView.h"
#include "Button.h"
#include "ComboBox.h"
#include "ContentView.h"
#include "DateField.h"
#include "ViewTest.h"

#include <QFileDialog>
#include <QMenu>
#include <QSignalSpy>

class RecordViewTest : public ViewTest {};

TEST_F(RecordViewTest, theMenuOffersARecordOfWhatIsShown)
{
    for (const auto& [tab, first] : {std::pair(1, QDate(2026, 11, 1)), {2, QDate(2026, 10, 1)}}) {
        viewSettings.selectedTab = tab;
        ContentView window(parts);
        show(window);
        QList<QDate> requested;
        QObject::connect(&window, &ContentView::recordRequested,
                         [&](const DaySpan& span) { requested.append(span.first); });
        click(named<QWidget>(window, "menu"));
        for (QAction* action : window.findChild<QMenu*>()->actions()) {
            if (action->text() == u"Save Record…"_s)
                action->trigger();
        }
        EXPECT_EQ(requested, QList({first}));
    }
}

TEST_F(RecordViewTest, savesWhatIsChosenAndSaysWhatHappened)
{
    RecordView view(parts);
    show(view);
    view.setShown({{2026, 10, 1}, {2026, 12, 31}});
    auto& period = named<ComboBox>(view, "recordPeriod");
    QStringList offered;
    for (int i = 0; i < period.count(); ++i)
        offered.append(period.itemText(i));
    EXPECT_EQ(offered, (QStringList{u"Q4 2026"_s, u"2026"_s, u"Other Dates"_s}));

    const auto& message = named<QLabel>(view, "recordMessage");
    auto& until = named<DateField>(view, "recordUntil");
    auto& save = named<Button>(view, "saveRecord");
    until.clear();
    QTest::keyClicks(&until, u"2026-09-30"_s);
    EXPECT_EQ(period.currentText(), u"Other Dates"_s);
    click(save);
    EXPECT_EQ(message.text(), u"The last day must not be before the first."_s);
    EXPECT_EQ(view.focusWidget(), &until);
    until.clear();
    QTest::keyClicks(&until, u"2026-10-02"_s);

    named<ComboBox>(view, "recordFormat").setCurrentIndex(1);
    EXPECT_FALSE(named<ComboBox>(view, "recordPaper").isEnabled());
    viewSettings.lastFolder = folder.path();
    click(save);
    auto& dialog = named<QFileDialog>(view, "recordFile");
    EXPECT_EQ(dialog.directory().path(), folder.path());
    EXPECT_EQ(dialog.selectedFiles(), QStringList(folder.filePath(u"Office Days 2026-10-01_2026-10-02.csv"_s)));
    Q_EMIT dialog.fileSelected(dialog.selectedFiles().first());
    dialog.close();
    EXPECT_TRUE(eventually([&] { return message.text() == u"Saved as Office Days 2026-10-01_2026-10-02.csv."_s; }));
    QFile file(folder.filePath(u"Office Days 2026-10-01_2026-10-02.csv"_s));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll().count('\n'), 3);
    EXPECT_TRUE(named<Button>(view, "openRecord").isVisible());

    view.saveTo(folder.filePath(u"gone/record.csv"_s));
    EXPECT_FALSE(save.isEnabled());
    EXPECT_TRUE(eventually([&] { return message.text().startsWith(u"Nothing was saved. The folder is not there"_s); }));
    EXPECT_TRUE(save.isEnabled());
    EXPECT_FALSE(named<Button>(view, "openRecord").isVisible());
}
