// SPDX-License-Identifier: GPL-3.0-or-later
#include "ProcessSetup.h"
#include "Testing.h"

#include <QStandardPaths>

#include <pwd.h>

TEST(ProcessSetup, findsTheFoldersOfTheUserWhateverTheEnvironmentSays)
{
    const auto home = qgetenv("HOME"), data = qgetenv("XDG_DATA_HOME");
    const auto restore = qScopeGuard([&] { qputenv("HOME", home), qputenv("XDG_DATA_HOME", data); });
    for (const char* path : {"", "rel/x"}) {
        for (const char* name : {"HOME", "XDG_DATA_HOME"})
            qputenv(name, path);
        correctUserFolders();
        const QString account = QString::fromLocal8Bit(getpwuid(geteuid())->pw_dir);
        EXPECT_EQ(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation), account + u"/.local/share"_s);
    }
    qputenv("XDG_DATA_HOME", "/data");
    correctUserFolders();
    EXPECT_EQ(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation), u"/data"_s);
}
