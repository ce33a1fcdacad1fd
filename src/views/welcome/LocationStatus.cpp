// SPDX-License-Identifier: GPL-3.0-or-later
#include "LocationStatus.h"

#include "Accessibility.h"
#include "Button.h"
#include "ButtonRow.h"
#include "Follow.h"
#include "Labels.h"
#include "LocationManager.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

LocationStatus::LocationStatus(LocationManager& manager, QWidget* parent)
    : QWidget(parent)
    , m_text(labels::text({}))
    , m_grant(new Button(tr("Grant Location Permission")))
    , m_open(new Button(tr("Open System Settings")))
{
    m_grant->setObjectName("grant"_L1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addWidget(m_text);
    auto* buttons = new ButtonRow(Qt::AlignLeft);
    buttons->add(m_grant);
    buttons->add(m_open);
    column->addWidget(buttons);
    connect(m_grant, &QAbstractButton::clicked, &manager.locationManager(),
            &LocationAuthorization::requestAlwaysAuthorization);
    connect(m_open, &QAbstractButton::clicked, &manager, &LocationManager::openLocationSettings);
    follow(manager.locationPermissionStatus, this, [this, &manager] { showStatus(manager.locationPermissionStatus); });
}

void LocationStatus::showStatus(AuthorizationStatus status)
{
    const bool isGranted = isAccessGranted(status);
    m_text->setText(isGranted ? tr("Location access: allowed. Pellory can see the names of networks.")
                              : tr("Location access: missing. Pellory cannot scan for networks."));
    if (isVisible())
        announce(*this, m_text->text());
    m_grant->setVisible(!isGranted);
    m_grant->setEnabled(status == AuthorizationStatus::notDetermined);
    m_open->setVisible(!isGranted);
}
