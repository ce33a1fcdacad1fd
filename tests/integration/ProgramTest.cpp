// SPDX-License-Identifier: GPL-3.0-or-later
#include "ModelContainer.h"
#include "ModelContext.h"
#include "RunningProgram.h"

#include <QFile>

TEST(ProgramTest, startsOnAFreshAccountAndAgainAfterEveryEnd)
{
    Home home;
    home.environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, u"unix:path=/nonexistent"_s);
    home.environment.insert(u"DBUS_SYSTEM_BUS_ADDRESS"_s, u"unix:path=/nonexistent"_s);
    const auto holdsSettingsAndQuarter = [&] {
        ModelContainer container({.name = {}, .path = home.store});
        ModelContext& context = container.mainContext();
        return context.fetchSettings().size() == 1 && context.fetchMonths().size() == 3;
    };
    for (const int end : {SIGKILL, SIGTERM, SIGKILL}) {
        RunningProgram program(home);
        const auto isStored = [&] { return QFile::exists(home.store) && holdsSettingsAndQuarter(); };
        EXPECT_TRUE(QTest::qWaitFor(isStored, RunningProgram::patience)) << program.log().toStdString();
        EXPECT_TRUE(program.logs("Sleeping for 1800 seconds")) << program.log().toStdString();
        program.end(end);
        EXPECT_TRUE(holdsSettingsAndQuarter());
    }
}
