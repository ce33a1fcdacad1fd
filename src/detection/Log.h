// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLoggingCategory>

/// The log of automatic marking. It names only networks that are on the person's own list.
Q_DECLARE_LOGGING_CATEGORY(logDetection)
