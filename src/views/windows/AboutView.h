// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "SpokenGroup.h"

/// The version and the licence of the program.
class AboutView : public SpokenGroup {
    Q_OBJECT

public:
    explicit AboutView(QWidget* parent = nullptr);
};
