// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLoggingCategory>

/// What the automatic marking does. No network is named here that is not in the person's own list.
Q_DECLARE_LOGGING_CATEGORY(logDetection)
