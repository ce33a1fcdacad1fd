// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Day.h"

#include <QList>
#include <QStringList>

#include <string>

/// Lists that are stored inside a record, as JSON in UTF-8. A day is an object with exactly the keys "id", "state" and
/// "isWorkday", written in this order. Reading is strict: whatever is not of this form throws a StoreError.

[[nodiscard]] std::string encodedDays(const QList<Day>& days);
[[nodiscard]] QList<Day> decodedDays(const std::string& json);

[[nodiscard]] std::string encodedStrings(const QStringList& strings);
[[nodiscard]] QStringList decodedStrings(const std::string& json);
