// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <thread>

/// Begins to read the system's configuration of fonts. It takes a good part of a start, and the toolkit waits for it
/// with its first text. To be joined before that: two that read it at once would each read all of it. Nothing may
/// change the environment meanwhile. Empty where the system gives no thread.
[[nodiscard]] std::jthread readFontsAhead();
