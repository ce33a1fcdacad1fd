// SPDX-License-Identifier: GPL-3.0-or-later
#include "FontsAhead.h"

#include <fontconfig/fontconfig.h>
#include <malloc.h>

#include <system_error>

std::jthread readFontsAhead()
{
    // Threads would each get a heap of their own, and what this one allocates stays for good.
    mallopt(M_ARENA_MAX, 1);
    try {
        return std::jthread([] { FcInit(); });
    } catch (const std::system_error&) {
        return {};
    }
}
