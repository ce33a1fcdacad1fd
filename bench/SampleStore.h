// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "AppSettings.h"
#include "ModelContainer.h"
#include "ModelContext.h"
#include "Month.h"
#include "Period.h"

/// Opens the store at `path`, or creates it.
inline std::unique_ptr<ModelContainer> openStore(const QString& path)
{
    return std::make_unique<ModelContainer>(ModelConfiguration{.name = QStringLiteral("Benchmark"), .path = path});
}

/// Fills a new store with `count` consecutive months including the current quarter, with every workday marked as by
/// hand, which is recorded, and with settings that enable tracking.
inline void fillStore(const QString& path, int count)
{
    const auto container = openStore(path);
    const QDate today = QDate::currentDate();
    const QDate quarter(today.year(), YearMonth{today.year(), today.month()}.quarter().months().front(), 1);
    QDate first = quarter.addMonths(-(count / 6 * 3));
    qint64 group = 0;
    for (int i = 0; i < count; ++i, first = first.addMonths(1)) {
        const auto month = std::make_shared<Month>(first.year(), first.month());
        QList<Day> days = month->days;
        for (Day& day : days) {
            if (!day.isInMonth() || !day.isWorkday)
                continue;
            day.state = allDayStates.at(static_cast<std::size_t>(day.id + i) % allDayStates.size());
            const QDate date = month->dateOf(day.id);
            container->mainContext().append({.time = date.startOfDay().toMSecsSinceEpoch(),
                                             .date = date,
                                             .after = day.state,
                                             .by = ChangedBy::Hand,
                                             .group = ++group});
        }
        month->days = days;
        container->mainContext().insert(month);
    }
    const auto settings = std::make_shared<AppSettings>();
    settings->firstTime = false;
    settings->wifiTrackingEnabled = true;
    container->mainContext().insert(settings);
    if (!container->mainContext().save())
        qFatal("The store at %s cannot be filled", qUtf8Printable(path));
}
