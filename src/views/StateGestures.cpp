// SPDX-License-Identifier: GPL-3.0-or-later
#include "StateGestures.h"

#include <QKeySequence>

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array modifierKeys{
    std::pair(ClickModifier::Command, Qt::ControlModifier),
    std::pair(ClickModifier::Option, Qt::AltModifier),
    std::pair(ClickModifier::Shift, Qt::ShiftModifier),
};

} // namespace

ClickModifier clickModifier(Qt::KeyboardModifiers held)
{
    for (const auto& [modifier, key] : modifierKeys) {
        if (held.testFlag(key))
            return modifier;
    }
    return ClickModifier::None;
}

ClickModifier modifierReaching(DayState state)
{
    switch (state) {
    case DayState::UNKNOWN:
        return ClickModifier::Command;
    case DayState::WILL_BE_IN_OFFICE:
        return ClickModifier::Option;
    case DayState::VACATION_DAY:
        return ClickModifier::Shift;
    case DayState::IN_OFFICE:
    case DayState::OUT_OF_OFFICE:
        break;
    }
    return ClickModifier::None;
}

QString keyName(ClickModifier modifier)
{
    for (const auto& [candidate, key] : modifierKeys) {
        if (candidate == modifier) // the native text of a modifier alone ends in a plus sign
            return QKeySequence(static_cast<int>(key)).toString(QKeySequence::NativeText).chopped(1);
    }
    return {};
}
