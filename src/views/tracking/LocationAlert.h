// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "AlertCard.h"

class AppSettings;
class LocationManager;
class TrackingStatus;

/// A card that is visible while tracking is on without permission to see network names, and offers what can be done.
class LocationAlert : public AlertCard {
    Q_OBJECT

public:
    LocationAlert(TrackingStatus& status, AppSettings& settings, LocationManager& manager, QWidget* parent = nullptr);

private:
    void refresh();
    void requestAccess();

    TrackingStatus& m_status;
    LocationManager& m_manager;
    Button* m_access;
};
