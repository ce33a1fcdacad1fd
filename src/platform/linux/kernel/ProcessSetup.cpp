// SPDX-License-Identifier: GPL-3.0-or-later
#include "ProcessSetup.h"

#include <fontconfig/fontconfig.h>
#include <malloc.h>

#include <system_error>

void limitMallocArenas()
{
    mallopt(M_ARENA_MAX, 1);
}

std::jthread preloadFontConfig()
{
    try {
        return std::jthread([] { FcInit(); });
    } catch (const std::system_error&) {
        return {};
    }
}
