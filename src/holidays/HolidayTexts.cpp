// SPDX-License-Identifier: GPL-3.0-or-later
#include "HolidayTexts.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace {

// The names of data/holidays/public-holidays.txt, for the catalogues.
constexpr std::array englishNames{
    // countries
    QT_TRANSLATE_NOOP("PublicHolidays", "Austria"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Belgium"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Canada"),
    QT_TRANSLATE_NOOP("PublicHolidays", "France"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Germany"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Ireland"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Luxembourg"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Netherlands"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Switzerland"),
    QT_TRANSLATE_NOOP("PublicHolidays", "United Kingdom"),
    QT_TRANSLATE_NOOP("PublicHolidays", "United States"),
    // regions
    QT_TRANSLATE_NOOP("PublicHolidays", "Alsace and Moselle"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Appenzell Ausserrhoden"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Appenzell Innerrhoden"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Baden-Württemberg"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Basel-City"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Basel-Country"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Bavaria"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Bavaria without Assumption Day"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Berlin"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Bern"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Brandenburg"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Bremen"),
    QT_TRANSLATE_NOOP("PublicHolidays", "England and Wales"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Geneva"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Hamburg"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Hesse"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Jura"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Lower Saxony"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Lucerne"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Mecklenburg-Western Pomerania"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Neuchâtel"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Nidwalden"),
    QT_TRANSLATE_NOOP("PublicHolidays", "North Rhine-Westphalia"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Northern Ireland"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Obwalden"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Rhineland-Palatinate"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Saarland"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Saxony"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Saxony-Anhalt"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Schaffhausen"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Schleswig-Holstein"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Schwyz"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Scotland"),
    QT_TRANSLATE_NOOP("PublicHolidays", "St. Gallen"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Thurgau"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Thuringia"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Ticino"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Uri"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Valais"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Vaud"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Zug"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Zurich"),
    // holidays
    QT_TRANSLATE_NOOP("PublicHolidays", "2 January"),
    QT_TRANSLATE_NOOP("PublicHolidays", "All Saints' Day"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Anniversary of the 1953 Uprising"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Armistice Day"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Ascension Day"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Assumption Day"),
    QT_TRANSLATE_NOOP("PublicHolidays", "August Bank Holiday"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Bastille Day"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Battle of the Boyne"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Berchtold's Day"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Boxing Day"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Canada Day"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Christmas Day"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Columbus Day"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Coronation of King Charles III"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Corpus Christi"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Day of German Unity"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Day of Remembrance and Recognition"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Day of Repentance and Prayer"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Diamond Jubilee"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Early May Bank Holiday"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Easter Monday"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Easter Sunday"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Epiphany"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Europe Day"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Fast of Geneva"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Federal Fast Monday"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Golden Jubilee"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Good Friday"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Immaculate Conception"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Independence Day"),
    QT_TRANSLATE_NOOP("PublicHolidays", "International Women's Day"),
    QT_TRANSLATE_NOOP("PublicHolidays", "June Bank Holiday"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Juneteenth"),
    QT_TRANSLATE_NOOP("PublicHolidays", "King's Day"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Labor Day"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Labour Day"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Liberation Day"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Martin Luther King Jr. Day"),
    QT_TRANSLATE_NOOP("PublicHolidays", "May Day"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Memorial Day"),
    QT_TRANSLATE_NOOP("PublicHolidays", "National Day"),
    QT_TRANSLATE_NOOP("PublicHolidays", "National Day for Truth and Reconciliation"),
    QT_TRANSLATE_NOOP("PublicHolidays", "New Year's Day"),
    QT_TRANSLATE_NOOP("PublicHolidays", "October Bank Holiday"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Platinum Jubilee"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Queen's Day"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Reformation Day"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Remembrance Day"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Republic Day"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Restoration of the Republic"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Second Day of Christmas"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Spring Bank Holiday"),
    QT_TRANSLATE_NOOP("PublicHolidays", "St Andrew's Day"),
    QT_TRANSLATE_NOOP("PublicHolidays", "St Brigid's Day"),
    QT_TRANSLATE_NOOP("PublicHolidays", "St Joseph's Day"),
    QT_TRANSLATE_NOOP("PublicHolidays", "St Nicholas of Flüe"),
    QT_TRANSLATE_NOOP("PublicHolidays", "St Patrick's Day"),
    QT_TRANSLATE_NOOP("PublicHolidays", "St Peter and St Paul"),
    QT_TRANSLATE_NOOP("PublicHolidays", "St Stephen's Day"),
    QT_TRANSLATE_NOOP("PublicHolidays", "State Funeral of Queen Elizabeth II"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Summer Bank Holiday"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Swiss National Day"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Thanksgiving Day"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Veterans Day"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Victoria Day"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Victory Day"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Washington's Birthday"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Wedding of Prince William"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Whit Monday"),
    QT_TRANSLATE_NOOP("PublicHolidays", "Whit Sunday"),
    QT_TRANSLATE_NOOP("PublicHolidays", "World Children's Day"),
    QT_TRANSLATE_NOOP("PublicHolidays", "World Cup Bank Holiday"),
};

} // namespace

bool hasHolidayText(const QString& english)
{
    return std::ranges::any_of(englishNames, [&](const char* name) { return english == QString::fromUtf8(name); });
}

QString holidayText(const QString& english)
{
    return english.isEmpty() ? QString() : QCoreApplication::translate("PublicHolidays", english.toUtf8().constData());
}

QString substituteText(const QString& holiday)
{
    return QCoreApplication::translate("PublicHolidays", "%1 (substitute)").arg(holiday);
}
