// SPDX-License-Identifier: GPL-3.0-or-later
#include "ModelContainer.h"
#include "ModelContext.h"
#include "Testing.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

TEST(ProgramTest, startsOnAFreshAccountAndAgainAfterEveryEnd)
{
    constexpr int patience = 30'000;
    const QTemporaryDir home;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, u"unix:path=/nonexistent"_s);
    environment.insert(u"XDG_DATA_HOME"_s, home.filePath(u"data"_s));
    environment.insert(u"XDG_CONFIG_HOME"_s, home.filePath(u"config"_s));
    const QString path = home.filePath(u"data/Pellory/Pellory.store"_s);
    const auto holdsSettingsAndQuarter = [&] {
        ModelContainer container({.name = {}, .path = path});
        ModelContext& context = container.mainContext();
        return context.fetchSettings().size() == 1 && context.fetchMonths().size() == 3;
    };
    for (const int end : {SIGKILL, SIGTERM, SIGKILL}) {
        QProcess program;
        program.setProcessEnvironment(environment);
        program.setProcessChannelMode(QProcess::ForwardedChannels);
        program.start(QStringLiteral(PELLORY_PROGRAM), {});
        ASSERT_TRUE(program.waitForStarted(patience));
        EXPECT_TRUE(QTest::qWaitFor([&] { return QFile::exists(path) && holdsSettingsAndQuarter(); }, patience));
        EXPECT_EQ(program.state(), QProcess::Running);
        ::kill(static_cast<pid_t>(program.processId()), end);
        ASSERT_TRUE(program.waitForFinished(patience));
        EXPECT_TRUE(holdsSettingsAndQuarter());
    }
}
