// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QVariantMap>

/// A status as lines of text: today, its month and quarter, and a line for each rule.
[[nodiscard]] QString statusText(const QVariantMap& status);

/// A status as one line of JSON.
[[nodiscard]] QByteArray statusJson(const QVariantMap& status);
