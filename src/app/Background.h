// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <memory>

class Notifier;
class QSettings;
class TrayHost;
class TrayIcon;
class AppWindows;
struct ViewParts;

/// What the program is while no window is open: it goes on checking where it tracks, and can be found in the tray and
/// by its notifications.
class Background : public QObject {
    Q_OBJECT

public:
    Background(const ViewParts& parts, AppWindows& windows, Notifier& notifier, TrayHost& trayHost,
               QSettings& settings);
    ~Background() override;

    /// The last window has been closed: with tracking on the checks go on, and the first time ever the person is told
    /// so; with tracking off there is nothing left to do.
    void lastClosed();
    /// One check, or the window where none is made: there is what has to be set first.
    void runCheck();

Q_SIGNALS:
    void quitRequested();

private:
    [[nodiscard]] bool isTracking() const;
    void showTrayIcon();

    const ViewParts& m_parts;
    AppWindows& m_windows;
    Notifier& m_notifier;
    QSettings& m_settings;
    std::unique_ptr<TrayIcon> m_trayIcon;
};
