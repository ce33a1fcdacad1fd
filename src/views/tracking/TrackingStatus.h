// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "LocationAuthorization.h"

#include <QObject>

#include <memory>

class WiFiMonitor;
struct ViewParts;

/// Whether days are marked by themselves, and whether they could be.
class TrackingStatus : public QObject {
    Q_OBJECT

public:
    explicit TrackingStatus(const ViewParts& parts, QObject* parent = nullptr);
    ~TrackingStatus() override;

    /// Begins to ask the system, and to follow it. Until then everything is taken to be on.
    void startMonitoring();

    [[nodiscard]] bool isTracking() const;
    [[nodiscard]] bool isWiFiOn() const;
    [[nodiscard]] AuthorizationStatus permission() const;
    /// Both that tracking needs are there.
    [[nodiscard]] bool isWiFiUsable() const { return isWiFiOn() && isAccessGranted(permission()); }
    /// In three words, such as "Tracking On".
    [[nodiscard]] QString text() const;

Q_SIGNALS:
    void changed();

private:
    const ViewParts& m_parts;
    std::unique_ptr<WiFiMonitor> m_wifiMonitor;
};
