// SPDX-License-Identifier: GPL-3.0-or-later
#include "StatisticsTexts.h"

#include "AttendanceStatistics.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString translated(const char* key)
{
    return QCoreApplication::translate("AttendanceStatistics", key);
}

} // namespace

MarkedText headlineText(qint64 inOffice, PeriodWord period)
{
    const QString word = period == PeriodWord::Month ? translated("month") : translated("quarter");
    return markedText(translated("%1 days in the office this **%2**"), {QString::number(inOffice), word});
}

MarkedText goalText(const AttendanceStatistics& statistics)
{
    if (!statistics.targetGoal)
        return {};
    const QString days = QString::number(std::max<qint64>(statistics.remainingDays, 0));
    const QString description = statistics.targetGoal->goal->desc;
    if (description.isEmpty())
        return markedText(translated("**%1 more days** to reach **%2**"),
                          {days, goalValueText(statistics.targetGoal->value)});
    return markedText(translated("**%1 more days** to reach goal **%2**"), {days, description});
}

QString averageText(double average)
{
    return translated("You've reached %1 average days in office per week").arg(twoDecimals(average));
}

QString workdaysText(qint64 workdays)
{
    return translated("%1 workdays").arg(workdays);
}

QString twoDecimals(double value)
{
    return QString::number(value, 'f', 2);
}

QString goalValueText(double value)
{
    return twoDecimals(value) + "/5"_L1;
}
