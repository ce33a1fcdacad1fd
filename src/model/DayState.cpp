// SPDX-License-Identifier: GPL-3.0-or-later
#include "DayState.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct DayStateText {
    QLatin1StringView raw;
    const char* description = nullptr;
};

// Indexed by the enumerator.
constexpr std::array<DayStateText, allDayStates.size()> texts{{
    {"UNKNOWN"_L1, QT_TRANSLATE_NOOP("DayState", "Unknown")},
    {"IN_OFFICE"_L1, QT_TRANSLATE_NOOP("DayState", "In the Office")},
    {"OUT_OF_OFFICE"_L1, QT_TRANSLATE_NOOP("DayState", "Out of Office")},
    {"VACATION_DAY"_L1, QT_TRANSLATE_NOOP("DayState", "Vacation Day")},
    {"WILL_BE_IN_OFFICE"_L1, QT_TRANSLATE_NOOP("DayState", "Will Be In Office")},
}};

const DayStateText& textOf(DayState state)
{
    return texts.at(static_cast<std::size_t>(state));
}

} // namespace

QLatin1StringView rawValue(DayState state)
{
    return textOf(state).raw;
}

std::optional<DayState> dayStateFromRawValue(QStringView raw)
{
    const auto* const found =
        std::ranges::find_if(allDayStates, [raw](DayState state) { return raw == rawValue(state); });
    return found == allDayStates.end() ? std::nullopt : std::optional(*found);
}

std::optional<DayState> dayStateFromText(const QString& text)
{
    const auto isMeant = [&text](DayState state) {
        return text.compare(rawValue(state), Qt::CaseInsensitive) == 0 ||
               text.compare(QLatin1StringView(textOf(state).description), Qt::CaseInsensitive) == 0 ||
               text.compare(description(state), Qt::CaseInsensitive) == 0;
    };
    const auto* const found = std::ranges::find_if(allDayStates, isMeant);
    return found == allDayStates.end() ? std::nullopt : std::optional(*found);
}

QString description(DayState state)
{
    return QCoreApplication::translate("DayState", textOf(state).description);
}
