// SPDX-License-Identifier: GPL-3.0-or-later
#include "HolidayChooser.h"

#include "ComboBox.h"
#include "Labels.h"

#include <QGridLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int earlierYears = 10;

QString countryCode(const HolidayArea& area)
{
    return area.id.section(u'-', 0, 0);
}

} // namespace

QString holidayAreaName(const QString& areaId)
{
    const auto areas = holidayAreas();
    const auto found = std::ranges::find(areas, areaId, &HolidayArea::id);
    if (found == areas.end())
        return {};
    return found->name.isEmpty() ? found->country : found->name;
}

HolidayChooser::HolidayChooser(const QString& areaId, int year, QWidget* parent)
    : QWidget(parent)
    , m_country(new ComboBox(tr("Country")))
    , m_region(new ComboBox(tr("Region")))
    , m_year(new ComboBox(tr("From the year")))
{
    build(year);
    choose(areaId);
    connect(m_country, &QComboBox::currentIndexChanged, this, [this] {
        showRegions();
        Q_EMIT changed();
    });
    connect(m_region, &QComboBox::activated, this, &HolidayChooser::changed);
    connect(m_year, &QComboBox::activated, this, &HolidayChooser::changed);
}

void HolidayChooser::build(int year)
{
    QStringList countries;
    for (const HolidayArea& area : m_areas)
        countries.append(area.country);
    countries.removeDuplicates();
    m_country->addItems(countries);
    for (int each = year - earlierYears; each <= year + 1; ++each)
        m_year->addItem(QString::number(each), each);
    m_year->setCurrentIndex(m_year->findData(year));
    auto* table = new QGridLayout(this);
    table->setContentsMargins({});
    table->setHorizontalSpacing(12);
    table->setVerticalSpacing(6);
    table->setColumnStretch(1, 1);
    for (int row = 0; ComboBox * each : {m_country, m_region, m_year}) {
        table->addWidget(labels::singleLine(labels::text(each->accessibleName())), row, 0);
        table->addWidget(each, row++, 1, Qt::AlignLeft);
    }
    m_country->setObjectName("country"_L1);
    m_region->setObjectName("region"_L1);
    m_year->setObjectName("firstYear"_L1);
}

void HolidayChooser::choose(const QString& areaId)
{
    auto chosen = std::ranges::find(m_areas, areaId, &HolidayArea::id);
    if (chosen == m_areas.end())
        chosen = std::ranges::find(m_areas, QLocale::territoryToCode(QLocale().territory()), countryCode);
    if (chosen != m_areas.end())
        m_country->setCurrentText(chosen->country);
    showRegions();
    m_region->setCurrentIndex(qMax(0, m_region->findData(areaId)));
}

void HolidayChooser::showRegions()
{
    m_region->clear();
    for (const HolidayArea& area : m_areas) {
        if (area.country == m_country->currentText())
            m_region->addItem(area.name.isEmpty() ? tr("All of %1", "country").arg(area.country) : area.name, area.id);
    }
    m_region->setEnabled(m_region->count() > 1);
    m_region->updateGeometry();
}

HolidayArea HolidayChooser::area() const
{
    const auto found = std::ranges::find(m_areas, m_region->currentData().toString(), &HolidayArea::id);
    return found == m_areas.end() ? HolidayArea() : *found;
}

int HolidayChooser::firstYear() const
{
    return m_year->currentData().toInt();
}
