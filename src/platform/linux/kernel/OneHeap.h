// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Has all threads take their memory from one heap. Each of them would get its own, and the few that the toolkit makes
/// allocate little. To be called before there are any.
void useOneHeap();
