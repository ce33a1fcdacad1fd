// SPDX-License-Identifier: GPL-3.0-or-later
#include "Background.h"

#include "Alerts.h"
#include "AppSettings.h"
#include "AppWindows.h"
#include "InOfficeCheck.h"
#include "ModelContext.h"
#include "Notifier.h"
#include "SaveAlert.h"
#include "StoreError.h"
#include "TrayHost.h"
#include "TrayIcon.h"
#include "UndoHistory.h"
#include "ViewParts.h"

#include <QGuiApplication>
#include <QSettings>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto noticeWasGiven = "backgroundNoticeWasGiven"_L1;

} // namespace

Background::Background(const ViewParts& parts, AppWindows& windows, Notifier& notifier, TrayHost& trayHost,
                       QSettings& settings, Alerts& alerts)
    : m_parts(parts)
    , m_windows(windows)
    , m_notifier(notifier)
    , m_settings(settings)
    , m_alerts(alerts)
{
    connect(&windows, &AppWindows::quitRequested, this, &Background::requestQuit);
    connect(&windows, &AppWindows::lastClosed, this, &Background::handleLastClosed);
    connect(&notifier, &Notifier::activated, &windows, &AppWindows::openDay);
    connect(&notifier, &Notifier::undoRequested, this, &Background::undo);
    connect(&trayHost, &TrayHost::appeared, this, &Background::showTrayIcon);
    connect(&trayHost, &TrayHost::gone, this, [this] { m_trayIcon.reset(); });
}

Background::~Background() = default;

// Without tracking there is nothing left to do. The first time ever that it continues without a window, the person is
// told.
void Background::handleLastClosed()
{
    if (!isTracking()) {
        requestQuit();
        return;
    }
    if (!m_parts.settings.notificationsEnabled || m_settings.value(noticeWasGiven).toBool())
        return;
    m_settings.setValue(noticeWasGiven, true);
    m_notifier.post({tr("Pellory"),
                     tr("Pellory keeps checking in the background whether you are in the office. Start it again to "
                        "open its window. To end it, choose Quit in the menu of the window."),
                     {}});
}

// Does nothing if it was done before, or the day was changed since.
void Background::undo(qint64 group)
{
    try {
        if (m_parts.history.undo(group))
            m_notifier.withdrawChanges(group);
    } catch (const StoreError& error) {
        m_notifier.post({tr("Pellory"), error.description(), {}});
    }
}

void Background::runCheck()
{
    if (m_parts.settings.wifiTrackingEnabled)
        m_parts.check.checkNow();
    else
        m_windows.openMain();
}

void Background::remindOfSetUp()
{
    const AppSettings& settings = m_parts.settings;
    if (settings.firstTime && settings.wifiTrackingEnabled && settings.notificationsEnabled)
        m_notifier.post({tr("Pellory"),
                         tr("Set-up is not finished, so Pellory does not check whether you are in the office. Open "
                            "Pellory to finish it."),
                         {}});
}

void Background::requestQuit()
{
    if (isSaved() || qGuiApp->isSavingSession())
        Q_EMIT quitRequested();
    else // not here: a window may be in the middle of its end
        QMetaObject::invokeMethod(this, &Background::askToQuit, Qt::QueuedConnection);
}

void Background::askToQuit()
{
    if (std::exchange(m_isAsking, true))
        return;
    const bool isQuitting = m_alerts.confirmWarning(tr("Quit Without Saving?"), SaveAlert::message(m_parts.context),
                                                    tr("Quit Anyway"), tr("Cancel"));
    m_isAsking = false;
    if (m_isEnding) // which closed the question
        return;
    if (isQuitting)
        Q_EMIT quitRequested();
    else
        m_windows.openMain();
}

void Background::prepareEnd()
{
    if (isSaved())
        return;
    const SaveState& state = m_parts.context.saveState();
    const QString message =
        state.file == SaveState::File::Ours
            ? tr("Your last changes could not be saved and are lost when Pellory ends. %1").arg(state.problem)
            : SaveAlert::message(m_parts.context);
    m_notifier.post({tr("Pellory"), message, u"unsaved"_s});
}

void Background::end()
{
    if (!std::exchange(m_isEnding, true)) {
        prepareEnd();
        if (!m_parts.context.saveState().value().isFine()) {
            connect(&m_notifier, &Notifier::delivered, this, &Background::quitRequested);
            QTimer::singleShot(1s, this, &Background::quitRequested);
            return;
        }
    }
    Q_EMIT quitRequested();
}

bool Background::isSaved()
{
    m_parts.context.save();
    return m_parts.context.saveState().value().isFine();
}

// Nothing is checked before the welcome is completed.
bool Background::isTracking() const
{
    return m_parts.settings.wifiTrackingEnabled && !m_parts.settings.firstTime;
}

void Background::showTrayIcon()
{
    m_trayIcon = std::make_unique<TrayIcon>(m_parts.settings, m_parts.wifiClient, m_parts.locationManager,
                                            m_parts.marker, m_parts.clock);
    connect(m_trayIcon.get(), &TrayIcon::openRequested, &m_windows, [this] { m_windows.openMain(); });
    connect(m_trayIcon.get(), &TrayIcon::checkRequested, this, &Background::runCheck);
    connect(m_trayIcon.get(), &TrayIcon::quitRequested, this, &Background::requestQuit);
}
