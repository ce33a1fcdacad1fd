// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "AttendanceRule.h"

#include <QList>

/// A rule to start from. It has a name and no id.
struct RulePreset {
    AttendanceRule rule;
    /// If not empty, the rule counts days of a kind of absence with this name, which its `absenceKind` does not have
    /// yet.
    QString absenceKindName = {};
};

/// Rules that employers have, in the person's language.
[[nodiscard]] QList<RulePreset> rulePresets();
