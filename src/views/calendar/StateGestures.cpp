// SPDX-License-Identifier: GPL-3.0-or-later
#include "StateGestures.h"

#include <QCoreApplication>
#include <QKeyEvent>

#include <algorithm>
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

Qt::Key keyFor(DayState state)
{
    return static_cast<Qt::Key>(Qt::Key_1 + static_cast<int>(state));
}

std::optional<DayState> stateForKey(const QKeyEvent& event)
{
    // Shift is held for digits on some keyboards.
    if ((event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) != Qt::NoModifier)
        return {};
    const auto* const found =
        std::ranges::find_if(allDayStates, [&](DayState state) { return event.key() == keyFor(state); });
    return found == allDayStates.end() ? std::nullopt : std::optional(*found);
}
