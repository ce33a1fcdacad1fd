// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "LocationAuthorization.h"

#include <QWidget>

class Button;
class LocationManager;
class QLabel;

/// Whether this program may see the names of networks, and how to permit it.
class LocationStatus : public QWidget {
    Q_OBJECT

public:
    explicit LocationStatus(LocationManager& manager, QWidget* parent = nullptr);

private:
    void showStatus(AuthorizationStatus status);

    QLabel* m_text;
    Button* m_grant;
    Button* m_open;
};
