// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Rounds to two decimals as "%.2f" of the C library does: a value exactly between two goes to the even one, 3.125 to
/// 3.12. Qt would write 3.13.
[[nodiscard]] double roundedToTwoDecimals(double value);
