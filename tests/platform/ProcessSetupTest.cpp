// SPDX-License-Identifier: GPL-3.0-or-later
#include "ProcessSetup.h"
#include "Testing.h"

#include <pwd.h>

TEST(ProcessSetup, asksTheAccountForTheHomeFolderIfTheEnvironmentNamesNone)
{
    const auto restore = qScopeGuard([home = qgetenv("HOME")] { qputenv("HOME", home); });
    for (const char* home : {"", "relative"}) {
        qputenv("HOME", home);
        correctUserFolders();
        EXPECT_EQ(qgetenv("HOME"), getpwuid(geteuid())->pw_dir);
    }
}
