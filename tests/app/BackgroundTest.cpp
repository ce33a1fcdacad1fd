// SPDX-License-Identifier: GPL-3.0-or-later
#include "Background.h"
#include "Alerts.h"
#include "AppWindows.h"
#include "TrayHost.h"
#include "ViewTest.h"

#include <QSignalSpy>

class BackgroundTest : public ViewTest, public Alerts {
protected:
    std::shared_ptr<void> showNotice(const QString& /*message*/, const QString& /*informativeText*/) override
    {
        return {};
    }
    void showCritical(const QString& /*message*/, const QString& /*informativeText*/) override {}
    [[nodiscard]] bool confirmWarning(const QString& /*message*/, const QString& /*informativeText*/,
                                      const QString& /*firstButton*/, const QString& /*secondButton*/) override
    {
        ++questions;
        return isConfirmed;
    }

    struct NoTray : TrayHost {
        void start() override {}
    } trayHost;
    AppWindows windows{parts};
    Background background{parts, windows, notifier, trayHost, stored, *this};
    int questions = 0;
    bool isConfirmed = false;
};

TEST_F(BackgroundTest, leadsToTheSetUpThatTrackingWaitsFor)
{
    settings->wifiTrackingEnabled = true;
    EXPECT_CALL(notifier, post);
    background.remindOfSetUp();
    background.runCheck();
    EXPECT_NE(QApplication::activeModalWidget(), nullptr) << "the welcome";
    settings->firstTime = false;
    background.remindOfSetUp();
}

TEST_F(BackgroundTest, undoesTheMarkOfANotificationUnlessThePersonHasChangedTheDay)
{
    const auto november = month(2026, 11);
    const auto index = *november->indexOf(20);
    const auto markByCheck = [&] { return marker.mark(*november, index, DayState::IN_OFFICE, MarkedBy::Check); };
    const qint64 group = markByCheck();
    EXPECT_CALL(notifier, withdrawChanges(group));
    for (const DayState state : {DayState::UNKNOWN, DayState::OUT_OF_OFFICE, DayState::IN_OFFICE}) {
        Q_EMIT notifier.undoRequested(group);
        EXPECT_EQ(DayMarker::stateOf(*november, index), state);
        marker.mark(*november, index, state == DayState::UNKNOWN ? DayState::OUT_OF_OFFICE : DayState::IN_OFFICE,
                    MarkedBy::Click);
    }
}

TEST_F(BackgroundTest, asksBeforeItQuitsUnsavedButNotAtTheEndOfTheSession)
{
    const QSignalSpy quit(&background, &Background::quitRequested);
    const auto november = month(2026, 11);
    background.requestQuit();
    EXPECT_EQ(quit.size(), 1);
    QFile::remove(path);
    mark(*november, 20, DayState::IN_OFFICE);
    for (const bool answer : {false, true}) {
        isConfirmed = answer;
        background.requestQuit();
        QCoreApplication::processEvents();
        EXPECT_EQ(quit.size(), answer ? 2 : 1);
        EXPECT_FALSE(QApplication::topLevelWidgets().isEmpty()) << "to go on with";
    }
    EXPECT_EQ(questions, 2);
    EXPECT_CALL(notifier, post(testing::Field(&Notification::topic, u"unsaved"_s)));
    background.end();
    EXPECT_EQ(quit.size(), 2);
    Q_EMIT notifier.delivered();
    EXPECT_EQ(quit.size(), 3);
    EXPECT_EQ(questions, 2);
}
