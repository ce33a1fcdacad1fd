// SPDX-License-Identifier: GPL-3.0-or-later
#include "TrackingIndicator.h"

#include "Theme.h"
#include "TrackingPopover.h"
#include "TrackingStatus.h"

TrackingIndicator::TrackingIndicator(const ViewParts& parts, TrackingStatus& status, QWidget* parent)
    : IconButton(Symbol::Wifi, {}, parent)
    , m_status(status)
{
    connect(&status, &TrackingStatus::changed, this, &TrackingIndicator::refresh);
    connect(this, &QAbstractButton::clicked, this,
            [this, &parts] { (new TrackingPopover(parts, m_status, this))->popUp(); });
    refresh();
}

void TrackingIndicator::refresh()
{
    setSymbol(m_status.isWiFiUsable() ? Symbol::Wifi : Symbol::WifiSlash);
    setHelp(m_status.text());
}

QColor TrackingIndicator::color() const
{
    const Theme& theme = themeFor(palette());
    if (!m_status.isTracking())
        return theme.dimText;
    return m_status.isWiFiUsable() ? theme.progressText : theme.outOfOffice;
}
