// SPDX-License-Identifier: GPL-3.0-or-later
#include "Log.h"

Q_LOGGING_CATEGORY(logDetection, "pellory.detection", QtInfoMsg)
