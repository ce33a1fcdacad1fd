// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DayRecord.h"

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QSet>

/// The days in the given states as an iCalendar file: an all-day event for each. A day has the same identity in each
/// file, and what is exported later takes the place of what was exported before. Only the state is in it, neither the
/// kind of absence nor the note, because calendars are shared.
[[nodiscard]] QByteArray calendarFile(const QList<DayRecord>& days, const QSet<DayState>& states, const QDateTime& now);
