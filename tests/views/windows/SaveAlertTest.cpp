// SPDX-License-Identifier: GPL-3.0-or-later
#include "SaveAlert.h"
#include "Button.h"
#include "ContentView.h"
#include "ViewTest.h"

#include <QSignalSpy>

#include <SQLiteCpp/Database.h>

class SaveAlertTest : public ViewTest {};

TEST_F(SaveAlertTest, saysWhatIsNotOnDiskAndOffersWhatCanBeDone)
{
    ContentView window(parts);
    show(window);
    const auto offered = [&] {
        QApplication::sendEvent(&window, std::make_unique<QEvent>(QEvent::WindowActivate).get());
        QApplication::processEvents();
        QStringList texts;
        for (const auto* button : window.findChildren<Button*>())
            texts += button->isVisible() ? button->text() : QString();
        texts.removeAll({});
        return texts.join(u", "_s);
    };
    EXPECT_EQ(offered(), u""_s);
    const QPoint place = inWindow(dayButton(window, 20));
    SQLite::Database other(path.toStdString(), SQLite::OPEN_READWRITE);
    other.exec("BEGIN IMMEDIATE");
    mark(*context.fetchMonths(2026, 11).first(), 20, DayState::IN_OFFICE);
    EXPECT_FALSE(context.save());
    EXPECT_EQ(offered(), u"Try Again"_s);
    EXPECT_EQ(inWindow(dayButton(window, 20)), place) << "for the next click";
    EXPECT_THAT(shownTexts(window), testing::Contains(SaveAlert::message(context)));
    other.exec("ROLLBACK");
    click(named<Button>(window, "trySaving"));
    EXPECT_EQ(offered(), u""_s);

    QFile::rename(path, path + u".away"_s);
    EXPECT_EQ(offered(), u"Keep What Is Shown"_s);
    QFile::copy(path + u".away"_s, path);
    EXPECT_EQ(offered(), u"Use File on Disk, Keep What Is Shown"_s);
    const QSignalSpy reload(&window, &ContentView::reloadRequested);
    click(named<Button>(window, "useFile"));
    EXPECT_EQ(reload.size(), 1);
    click(named<Button>(window, "keepShown"));
    EXPECT_EQ(offered(), u""_s);
}
