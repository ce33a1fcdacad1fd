// SPDX-License-Identifier: GPL-3.0-or-later
#include "TrackingIndicator.h"

#include "Theme.h"
#include "TrackingStatus.h"

TrackingIndicator::TrackingIndicator(TrackingStatus& status, QWidget* parent)
    : IconButton(Symbol::Wifi, {}, parent)
    , m_status(status)
{
    connect(&status, &TrackingStatus::changed, this, &TrackingIndicator::refresh);
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
    if (!m_status.isChecking())
        return theme.dimText;
    return m_status.isWiFiUsable() ? theme.progressText : theme.outOfOffice;
}
