// SPDX-License-Identifier: GPL-3.0-or-later
#include "DaysCsvFormat.h"

#include <algorithm>
#include <span>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

template <class Value> using Name = std::pair<Value, QLatin1StringView>;

constexpr std::array kindNames{
    Name<int>(AbsenceKind::sick, "SICK"_L1),
    Name<int>(AbsenceKind::businessTrip, "BUSINESS_TRIP"_L1),
    Name<int>(AbsenceKind::clientVisit, "CLIENT_VISIT"_L1),
    Name<int>(AbsenceKind::training, "TRAINING"_L1),
};
constexpr std::array treatmentNames{
    Name<Treatment>(Treatment::OutOfOffice, "OUT_OF_OFFICE"_L1),
    Name<Treatment>(Treatment::InOffice, "IN_OFFICE"_L1),
    Name<Treatment>(Treatment::LeftOut, "LEFT_OUT"_L1),
};
constexpr std::array sourceNames{
    Name<DayOffSource>(DayOffSource::Hand, "HAND"_L1),
    Name<DayOffSource>(DayOffSource::Holidays, "HOLIDAYS"_L1),
    Name<DayOffSource>(DayOffSource::File, "FILE"_L1),
};
constexpr std::array authorNames{
    Name<ChangedBy>(ChangedBy::Hand, "HAND"_L1),       Name<ChangedBy>(ChangedBy::Check, "CHECK"_L1),
    Name<ChangedBy>(ChangedBy::Undo, "UNDO"_L1),       Name<ChangedBy>(ChangedBy::Redo, "REDO"_L1),
    Name<ChangedBy>(ChangedBy::Restore, "RESTORE"_L1), Name<ChangedBy>(ChangedBy::Pattern, "PATTERN"_L1),
    Name<ChangedBy>(ChangedBy::Import, "IMPORT"_L1),
};

template <class Names, class Value> QLatin1StringView nameIn(const Names& names, Value value)
{
    const auto* const found = std::ranges::find(names, value, &Names::value_type::first);
    return found == names.end() ? QLatin1StringView() : found->second;
}

template <class Names> auto valueIn(const Names& names, QStringView wanted)
{
    const auto* const found = std::ranges::find_if(
        names, [wanted](const auto& name) { return wanted.compare(name.second, Qt::CaseInsensitive) == 0; });
    return found == names.end() ? std::nullopt : std::optional(found->first);
}

// Including the wide forms, which some spreadsheets read like the others.
bool beginsFormula(QStringView text)
{
    return !text.isEmpty() && QStringView(u"=+-@\t\r\n\uFF1D\uFF0B\uFF0D\uFF20").contains(text.front());
}

QStringView withoutApostrophes(QStringView text)
{
    while (text.startsWith(u'\''))
        text = text.sliced(1);
    return text;
}

} // namespace

QLatin1StringView days_csv::nameOfKind(int kind)
{
    return kind >= AbsenceKind::firstOwn ? ownKind : nameIn(kindNames, kind);
}

QLatin1StringView days_csv::nameOf(Treatment treatment)
{
    return nameIn(treatmentNames, treatment);
}

QLatin1StringView days_csv::nameOf(DayOffSource source)
{
    return nameIn(sourceNames, source);
}

QLatin1StringView days_csv::nameOf(ChangedBy by)
{
    return nameIn(authorNames, by);
}

std::optional<int> days_csv::kindNamed(QStringView name)
{
    return valueIn(kindNames, name);
}

std::optional<Treatment> days_csv::treatmentNamed(QStringView name)
{
    return valueIn(treatmentNames, name);
}

std::optional<DayOffSource> days_csv::sourceNamed(QStringView name)
{
    return valueIn(sourceNames, name);
}

std::optional<ChangedBy> days_csv::authorNamed(QStringView name)
{
    return valueIn(authorNames, name);
}

QString days_csv::escaped(const QString& text)
{
    return beginsFormula(withoutApostrophes(text)) ? u'\'' + text : text;
}

QString days_csv::unescaped(const QString& text)
{
    return text.startsWith(u'\'') && beginsFormula(withoutApostrophes(text)) ? text.sliced(1) : text;
}
