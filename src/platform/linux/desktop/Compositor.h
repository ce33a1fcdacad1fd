// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Whether something blends the transparent parts of a window with what is behind it. Without it they are black.
[[nodiscard]] bool hasCompositor();
