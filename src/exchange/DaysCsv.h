// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DayRecord.h"

#include <QByteArray>
#include <QList>

/// The days as CSV in UTF-8, with a header, as RFC 4180 has it. `kinds` are those that days may have. Texts that a
/// spreadsheet would take for a formula begin with an apostrophe, which the reader takes off again.
[[nodiscard]] QByteArray daysCsv(const QList<DayRecord>& days, const QList<AbsenceKind>& kinds);
