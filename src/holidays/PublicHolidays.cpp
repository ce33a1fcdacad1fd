// SPDX-License-Identifier: GPL-3.0-or-later
#include "PublicHolidays.h"

#include "HolidayRuleFile.h"
#include "HolidayTexts.h"

#include <QCollator>
#include <QFile>
#include <QMap>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using NamesByDate = QMap<QDate, QStringList>;

QList<HolidayCountry> ownRules()
{
    QFile file(u":/holidays/public-holidays.txt"_s);
    if (!file.open(QFile::ReadOnly))
        qFatal("The program lacks its holidays");
    return readHolidayRules(QString::fromUtf8(file.readAll()));
}

void addName(NamesByDate& names, QDate date, const QString& name)
{
    QStringList& namesOfDate = names[date];
    if (!namesOfDate.contains(name))
        namesOfDate.append(name);
}

bool isOnWeekend(QDate date)
{
    return date.dayOfWeek() >= Qt::Saturday;
}

/// The day off in place of a holiday on a weekend.
std::optional<QDate> substituteOf(QDate date, HolidayRule::Substitute kind, const NamesByDate& taken)
{
    using Substitute = HolidayRule::Substitute;
    const bool isSunday = date.dayOfWeek() == Qt::Sunday;
    if (!isOnWeekend(date) || kind == Substitute::None || (kind == Substitute::Monday && !isSunday))
        return {};
    if (kind == Substitute::Nearest)
        return date.addDays(isSunday ? 1 : -1);
    QDate next = date.addDays(1);
    while (kind == Substitute::Next && (isOnWeekend(next) || taken.contains(next)))
        next = next.addDays(1);
    return next;
}

struct Holiday {
    QDate date;
    const HolidayRule* rule;
};

/// From the end of the year before to the beginning of the year after, as a substitute can be in another year.
QList<Holiday> holidaysAround(int year, const HolidayCountry& country, const QString& area)
{
    QList<Holiday> holidays;
    for (const HolidayRule& rule : country.rules) {
        for (int near = year - 1; near <= year + 1; ++near) {
            const auto date = rule.isIn(area) ? rule.dateIn(near) : std::nullopt;
            if (date)
                holidays.append({*date, &rule});
        }
    }
    std::ranges::stable_sort(holidays, {}, &Holiday::date);
    return holidays;
}

NamesByDate namesAround(int year, const HolidayCountry& country, const QString& area)
{
    const QList<Holiday> holidays = holidaysAround(year, country, area);
    NamesByDate names;
    for (const Holiday& holiday : holidays)
        addName(names, holiday.date, holidayText(holiday.rule->name));
    for (const Holiday& holiday : holidays) {
        if (const auto substitute = substituteOf(holiday.date, holiday.rule->substitute, names))
            addName(names, *substitute, substituteText(holidayText(holiday.rule->name)));
    }
    return names;
}

} // namespace

QList<HolidayArea> holidayAreas()
{
    QList<HolidayArea> areas;
    for (const HolidayCountry& country : ownRules()) {
        for (const RuleArea& area : country.areas)
            areas.append({area.id, holidayText(country.name), holidayText(area.name)});
    }
    const QCollator collator;
    std::ranges::stable_sort(areas, [&](const HolidayArea& left, const HolidayArea& right) {
        const int countries = collator.compare(left.country, right.country);
        return countries != 0 ? countries < 0 : collator.compare(left.name, right.name) < 0;
    });
    return areas;
}

QList<DayOff> publicHolidays(const QString& areaId, int year)
{
    for (const HolidayCountry& country : ownRules()) {
        if (std::ranges::find(country.areas, areaId, &RuleArea::id) == country.areas.end())
            continue;
        const NamesByDate names = namesAround(year, country, areaId);
        QList<DayOff> daysOff;
        for (auto day = names.begin(); day != names.end(); ++day) {
            if (day.key().year() == year)
                daysOff.append({day.key(), day.value().join(u", "_s), DayOffSource::Holidays});
        }
        return daysOff;
    }
    return {};
}
