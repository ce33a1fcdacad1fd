// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "AppSettings.h"
#include "AttendanceRule.h"
#include "Counting.h"
#include "DayRecord.h"
#include "DaySpan.h"
#include "RuleProgress.h"

#include <QDateTime>
#include <QList>

#include <memory>

class CountingRecords;
class DayMarker;
class Month;

/// All that a record of a period says: the days, and what is needed to count them as the trackers and rules do. It
/// shares nothing that changes, so that another thread can use it.
struct RecordContents {
    DaySpan period;
    QDateTime made;
    /// Those about which something is stored, in order.
    QList<DayRecord> days = {};
    /// Without gaps. Of a month of which only a part is in the period, only those days.
    QList<std::shared_ptr<const Month>> months = {};
    AppSettings::Goals goals = {};
    QList<AttendanceRule> rules = {};
    /// The days of all spans of the rules that the period touches.
    CountedDays ruleDays{{}, {}, {}, false};
    Qt::DayOfWeek weekStart = Qt::Monday;

    Counting counting = {};
    bool vacationDaysCountAsInOffice = false;
    bool leavesOutVacation = false;
    QList<AbsenceKind> kinds = {};
    QList<WorkWeek> workWeeks = {};

    /// All that is stored about a day, which may be nothing.
    [[nodiscard]] DayRecord recordOn(QDate date) const;
};

/// The period has at least one day, and at most 100 years. Throws a StoreError if the store cannot be read.
[[nodiscard]] RecordContents recordContents(const DayMarker& marker, const CountingRecords& counting,
                                            const AppSettings& settings, DaySpan period, Qt::DayOfWeek weekStart,
                                            const QDateTime& now);
