// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>

inline constexpr int secondsOfDay = 24 * 60 * 60;

/// A time zone, and the day that it is there.
struct ZoneAndDay {
    QString zone;
    QDate day;
};

/// A place in the world where it is so many seconds past midnight now.
[[nodiscard]] inline ZoneAndDay whereItIsNow(int secondOfDay)
{
    const QDateTime now = QDateTime::currentDateTimeUtc();
    int east = secondOfDay - now.time().msecsSinceStartOfDay() / 1000;
    if (east > secondsOfDay / 2)
        east -= secondsOfDay;
    const QString offset = QTime(0, 0).addSecs(std::abs(east)).toString(QStringLiteral("hh:mm:ss"));
    return {(east > 0 ? QStringLiteral("TST-") : QStringLiteral("TST")) + offset, now.addSecs(east).date()};
}
