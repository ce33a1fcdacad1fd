// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Day.h"

#include <QList>
#include <QStringList>

#include <string>

/// Lists that are stored in one field, as JSON in UTF-8. A day is an object with the keys "id", "state" and
/// "isWorkday", written in this order and all required. Decoding throws a StoreError for a missing key, a wrong type or
/// an unknown state.

[[nodiscard]] std::string encodedDays(const QList<Day>& days);
[[nodiscard]] QList<Day> decodedDays(const std::string& json);

[[nodiscard]] std::string encodedStrings(const QStringList& strings);
[[nodiscard]] QStringList decodedStrings(const std::string& json);
