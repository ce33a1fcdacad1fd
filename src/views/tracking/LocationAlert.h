// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class Button;
class TrackingStatus;
struct ViewParts;

/// Says that tracking is on but cannot learn the names of networks, and what can be done. It is there for as long as
/// that is so, and in nobody's way.
class LocationAlert : public QWidget {
    Q_OBJECT

public:
    LocationAlert(const ViewParts& parts, TrackingStatus& status, QWidget* parent = nullptr);

private:
    void refresh();
    void giveAccess();

    const ViewParts& m_parts;
    TrackingStatus& m_status;
    Button* m_access;
};
