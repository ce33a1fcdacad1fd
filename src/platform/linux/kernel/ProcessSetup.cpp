// SPDX-License-Identifier: GPL-3.0-or-later
#include "ProcessSetup.h"

#include <QByteArray>

#include <fontconfig/fontconfig.h>
#include <malloc.h>
#include <pwd.h>
#include <unistd.h>

#include <system_error>

void limitMallocArenas()
{
    mallopt(M_ARENA_MAX, 1);
}

void correctUserFolders()
{
    for (const char* name : {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME"}) {
        if (!qgetenv(name).startsWith('/'))
            qunsetenv(name);
    }
    if (qEnvironmentVariableIsSet("HOME"))
        return;
    if (const passwd* account = getpwuid(geteuid()))
        qputenv("HOME", account->pw_dir);
}

std::jthread preloadFontConfig()
{
    try {
        return std::jthread([] { FcInit(); });
    } catch (const std::system_error&) {
        return {};
    }
}
