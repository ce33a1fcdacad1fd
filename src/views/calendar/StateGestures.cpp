// SPDX-License-Identifier: GPL-3.0-or-later
#include "StateGestures.h"

#include <QCoreApplication>

#include <array>

namespace {

struct ModifierKey {
    ClickModifier modifier = ClickModifier::None;
    Qt::KeyboardModifier key = Qt::NoModifier;
    const char* name = nullptr;
};

constexpr std::array modifierKeys{
    ModifierKey{ClickModifier::Command, Qt::ControlModifier, QT_TRANSLATE_NOOP("StateGestures", "Ctrl")},
    ModifierKey{ClickModifier::Option, Qt::AltModifier, QT_TRANSLATE_NOOP("StateGestures", "Alt")},
    ModifierKey{ClickModifier::Shift, Qt::ShiftModifier, QT_TRANSLATE_NOOP("StateGestures", "Shift")},
};

} // namespace

ClickModifier clickModifier(Qt::KeyboardModifiers held)
{
    for (const auto& [modifier, key, name] : modifierKeys) {
        if (held.testFlag(key))
            return modifier;
    }
    return ClickModifier::None;
}

ClickModifier modifierFor(DayState state)
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
    for (const auto& [candidate, key, name] : modifierKeys) {
        if (candidate == modifier)
            return QCoreApplication::translate("StateGestures", name);
    }
    return {};
}
