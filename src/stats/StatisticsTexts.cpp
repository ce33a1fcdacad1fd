// SPDX-License-Identifier: GPL-3.0-or-later
#include "StatisticsTexts.h"

#include "AttendanceStatistics.h"
#include "Rounding.h"

#include <QCoreApplication>

#include <algorithm>
#include <limits>

namespace {

constexpr int decimals = 2;

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(AttendanceStatistics)
};

// The plural form of a text is chosen by an int.
constexpr qint64 largestNumber = std::numeric_limits<int>::max();

int numberOf(qint64 days)
{
    return static_cast<int>(std::clamp<qint64>(days, 0, largestNumber));
}

QString withLargeNumber(QString text, qint64 days)
{
    return days <= largestNumber ? text : text.replace(QString::number(largestNumber), QString::number(days));
}

} // namespace

MarkedText headlineText(qint64 inOffice, PeriodWord period)
{
    const int days = numberOf(inOffice);
    return markedText(period == PeriodWord::Month ? Texts::tr("%n days in the office this **month**", nullptr, days)
                                                  : Texts::tr("%n days in the office this **quarter**", nullptr, days),
                      {});
}

MarkedText goalText(const AttendanceStatistics& statistics)
{
    if (!statistics.targetGoal)
        return {};
    const qint64 days = statistics.remainingDays;
    const QString description = statistics.targetGoal->goal->desc;
    if (description.isEmpty()) {
        const QString pattern = Texts::tr("**%n more days** to reach **%1**", nullptr, numberOf(days));
        return markedText(withLargeNumber(pattern, days), {goalValueText(statistics.targetGoal->value)});
    }
    const QString pattern = Texts::tr("**%n more days** to reach goal **%1**", nullptr, numberOf(days));
    return markedText(withLargeNumber(pattern, days), {description});
}

QString averageText(double average)
{
    //: %L1 in place of %1 writes the number as the person's locale has it.
    return Texts::tr("You've reached %1 average days in office per week")
        .arg(roundedToTwoDecimals(average), 0, 'f', decimals);
}

QString workdaysText(qint64 workdays)
{
    return Texts::tr("%n workdays", nullptr, numberOf(workdays));
}

QString twoDecimals(double value)
{
    //: An average of days per week. %L1 in place of %1 writes the number as the person's locale has it.
    return Texts::tr("%1", "days per week").arg(roundedToTwoDecimals(value), 0, 'f', decimals);
}

QString goalValueText(double value)
{
    //: The value of a goal, of five days in a week. %L1 in place of %1 writes it as the person's locale has it.
    return Texts::tr("%1/5", "days per week").arg(roundedToTwoDecimals(value), 0, 'f', decimals);
}
