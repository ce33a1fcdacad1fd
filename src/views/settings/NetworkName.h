// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Makes any name of a network safe to show: invisible characters get a visible sign, and the name does not change the
/// direction of the text around it. For display only: two names may look the same.
[[nodiscard]] QString displayName(const QString& ssid);
