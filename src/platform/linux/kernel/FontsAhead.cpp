// SPDX-License-Identifier: GPL-3.0-or-later
#include "FontsAhead.h"

#include <fontconfig/fontconfig.h>

#include <system_error>

std::jthread readFontsAhead()
{
    try {
        return std::jthread([] { FcInit(); });
    } catch (const std::system_error&) {
        return {};
    }
}
