// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QList>

class DayAbsences;
struct ChangedDays;

/// Says in a line what changed, such as "Thu 19 November: Vacation Day". The changes were made by the same hand at the
/// same moment; there is at least one. Days of another year than today's are written with their year.
[[nodiscard]] QString changeText(const QList<ChangedDays>& changes, QDate today, const DayAbsences& absences);
