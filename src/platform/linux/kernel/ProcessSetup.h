// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <thread>

// What the process sets up before the toolkit.

/// Makes all threads allocate from one arena: each would get its own otherwise, and the toolkit's few threads allocate
/// little. Call it before any thread is started.
void limitMallocArenas();

/// Makes the user's folders what the desktop takes them for: relative paths in the environment are ignored, and without
/// HOME the account has the home folder. The toolkit would use the working folder and the root folder. Call it before
/// any thread is started.
void correctUserFolders();

/// Reads the font configuration in a thread: it takes a good part of a start, and the toolkit waits for it with its
/// first text. Join the thread before that, because two that read it at once would both read all of it. Do not change
/// the environment meanwhile. The thread is empty if the system could not start one.
[[nodiscard]] std::jthread preloadFontConfig();
