// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>

/// How long a service may take to answer a call.
inline constexpr std::chrono::milliseconds busPatience = std::chrono::seconds(25);
