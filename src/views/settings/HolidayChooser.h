// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "PublicHolidays.h"

#include <QWidget>

class ComboBox;

/// The choice of a country, of its region, and of a first year.
class HolidayChooser : public QWidget {
    Q_OBJECT

public:
    /// Starts with the area of this id, else with the country of the locale.
    HolidayChooser(const QString& areaId, int year, QWidget* parent = nullptr);

    [[nodiscard]] HolidayArea area() const;
    [[nodiscard]] int firstYear() const;

Q_SIGNALS:
    void changed();

private:
    void build(int year);
    void choose(const QString& areaId);
    void showRegions();

    QList<HolidayArea> m_areas = holidayAreas();
    ComboBox* m_country;
    ComboBox* m_region;
    ComboBox* m_year;
};

/// The name of an area, such as "Bavaria", or "Germany" for a whole country. Empty if there is none of this id.
[[nodiscard]] QString holidayAreaName(const QString& areaId);
