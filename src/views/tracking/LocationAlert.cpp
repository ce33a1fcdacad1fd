// SPDX-License-Identifier: GPL-3.0-or-later
#include "LocationAlert.h"

#include "Accessibility.h"
#include "AppSettings.h"
#include "Button.h"
#include "ButtonRow.h"
#include "Card.h"
#include "Labels.h"
#include "LocationManager.h"
#include "TrackingStatus.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

LocationAlert::LocationAlert(TrackingStatus& status, AppSettings& settings, LocationManager& manager, QWidget* parent)
    : QWidget(parent)
    , m_status(status)
    , m_manager(manager)
    , m_access(new Button({}))
{
    m_access->setObjectName("giveAccess"_L1);
    m_access->setProminent(true);
    auto* disable = new Button(tr("Disable Automatic Tracking"));
    disable->setObjectName("disableTracking"_L1);
    setAccessibleRole(*this, QAccessible::AlertMessage);
    setAccessibleName(tr("Location Permissions Needed"));
    auto* card = new Card;
    auto* around = new QVBoxLayout(this);
    around->setContentsMargins(24, 20, 24, 0);
    around->addWidget(card, 0, Qt::AlignHCenter);
    card->setFixedWidth(Card::contentWidth(font()));
    auto* column = new QVBoxLayout(card);
    column->setContentsMargins(20, 16, 20, 16);
    column->addWidget(labels::strong(accessibleName()));
    column->addWidget(labels::text(
        tr("You have automatic in office tracking enabled, but the app doesn't have access to your location.")));
    auto* buttons = new ButtonRow(Qt::AlignRight);
    buttons->add(disable);
    buttons->add(m_access);
    column->addSpacing(4);
    column->addWidget(buttons);
    connect(m_access, &QAbstractButton::clicked, this, &LocationAlert::requestAccess);
    connect(disable, &QAbstractButton::clicked, this, [&settings] { settings.wifiTrackingEnabled = false; });
    connect(&status, &TrackingStatus::changed, this, &LocationAlert::refresh);
    refresh();
}

void LocationAlert::refresh()
{
    const bool canAsk = m_status.permission() == AuthorizationStatus::notDetermined;
    m_access->setText(canAsk ? tr("Allow Access") : tr("Open System Settings"));
    setVisible(m_status.isTracking() && !isAccessGranted(m_status.permission()));
}

void LocationAlert::requestAccess()
{
    if (m_status.permission() == AuthorizationStatus::notDetermined)
        m_manager.locationManager().requestAlwaysAuthorization();
    else
        m_manager.openLocationSettings();
}
