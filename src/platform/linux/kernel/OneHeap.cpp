// SPDX-License-Identifier: GPL-3.0-or-later
#include "OneHeap.h"

#include <malloc.h>

void useOneHeap()
{
    mallopt(M_ARENA_MAX, 1);
}
