// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "SystemSettings.h"

/// The settings programs of GNOME and KDE. Other desktops have no such page.
class DesktopSystemSettings : public SystemSettings {
    Q_OBJECT

public:
    void openLocationSettings() override;
};
