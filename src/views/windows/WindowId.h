// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The windows beside the main window. Each is there at most once.
enum class WindowId { calendarViewSettings, settings, help, about, record };
