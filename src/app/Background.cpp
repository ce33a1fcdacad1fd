// SPDX-License-Identifier: GPL-3.0-or-later
#include "Background.h"

#include "AppSettings.h"
#include "AppWindows.h"
#include "InOfficeCheck.h"
#include "Notifier.h"
#include "TrayHost.h"
#include "TrayIcon.h"
#include "ViewParts.h"

#include <QSettings>

using namespace Qt::StringLiterals;

namespace {

constexpr auto noticeWasGiven = "backgroundNoticeWasGiven"_L1;

} // namespace

Background::Background(const ViewParts& parts, AppWindows& windows, Notifier& notifier, TrayHost& trayHost,
                       QSettings& settings)
    : m_parts(parts)
    , m_windows(windows)
    , m_notifier(notifier)
    , m_settings(settings)
{
    connect(&windows, &AppWindows::lastClosed, this, &Background::handleLastClosed);
    connect(&notifier, &Notifier::activated, &windows, &AppWindows::openDay);
    connect(&trayHost, &TrayHost::appeared, this, &Background::showTrayIcon);
    connect(&trayHost, &TrayHost::gone, this, [this] { m_trayIcon.reset(); });
}

Background::~Background() = default;

// Without tracking there is nothing left to do. The first time ever that it continues without a window, the person is
// told.
void Background::handleLastClosed()
{
    if (!isTracking()) {
        Q_EMIT quitRequested();
        return;
    }
    if (!m_parts.settings.notificationsEnabled || m_settings.value(noticeWasGiven).toBool())
        return;
    m_settings.setValue(noticeWasGiven, true);
    m_notifier.post({tr("Pellory"),
                     tr("Pellory keeps checking in the background whether you are in the office. Start it again to "
                        "open its window."),
                     {}});
}

void Background::runCheck()
{
    if (isTracking())
        m_parts.check.checkNow(true);
    else
        m_windows.openMain();
}

// Nothing is checked before the welcome is completed.
bool Background::isTracking() const
{
    return m_parts.settings.wifiTrackingEnabled && !m_parts.settings.firstTime;
}

void Background::showTrayIcon()
{
    m_trayIcon = std::make_unique<TrayIcon>(m_parts.settings, m_parts.wifiClient, m_parts.locationManager);
    connect(m_trayIcon.get(), &TrayIcon::openRequested, &m_windows, [this] { m_windows.openMain(); });
    connect(m_trayIcon.get(), &TrayIcon::checkRequested, this, &Background::runCheck);
    connect(m_trayIcon.get(), &TrayIcon::quitRequested, this, &Background::quitRequested);
}
