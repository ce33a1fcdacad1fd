// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <memory>

class Alerts;
class Notifier;
class QSettings;
class TrayHost;
class TrayIcon;
class AppWindows;
struct ViewParts;

/// Keeps the program reachable without a window, through the tray and its notifications, and decides whether it runs on
/// when the last window is closed.
class Background : public QObject {
    Q_OBJECT

public:
    Background(const ViewParts& parts, AppWindows& windows, Notifier& notifier, TrayHost& trayHost, QSettings& settings,
               Alerts& alerts);
    ~Background() override;

    /// Runs a check for a person, or opens the window if tracking is off.
    void runCheck();
    /// Notifies the person if tracking is on but waits for the first run. For a start without a window.
    void remindOfSetUp();

    /// Quits. If something is not saved, the person is asked first.
    void requestQuit();
    /// Saves before the session ends. If that fails, nobody is asked, but a notification says so.
    void prepareEnd();
    /// Quits without a question, because the session ends.
    void end();

Q_SIGNALS:
    void quitRequested();

private:
    void handleLastClosed();
    void undo(qint64 group);
    void askToQuit();
    [[nodiscard]] bool isSaved();
    [[nodiscard]] bool isTracking() const;
    void showTrayIcon();

    const ViewParts& m_parts;
    AppWindows& m_windows;
    Notifier& m_notifier;
    QSettings& m_settings;
    Alerts& m_alerts;
    bool m_isAsking = false;
    bool m_isEnding = false;
    std::unique_ptr<TrayIcon> m_trayIcon;
};
