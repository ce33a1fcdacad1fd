// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "WorkTime.h"

#include <QList>
#include <QString>

/// A country or a region whose public holidays are known.
struct HolidayArea {
    /// Such as "DE-BY". It is stored and never changes.
    QString id;
    /// In the person's language.
    QString country;
    /// The region, in the person's language. Empty if it is the whole country.
    QString name;
};

/// Sorted for display: by country, then by name.
[[nodiscard]] QList<HolidayArea> holidayAreas();

/// The public holidays of an area, and the days off in place of those on a weekend, in the order of their dates; each
/// date once. Names are in the person's language if there is a translation, otherwise in English. Empty for an unknown
/// area.
[[nodiscard]] QList<DayOff> publicHolidays(const QString& areaId, int year);
