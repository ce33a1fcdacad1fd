// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <memory>

class QMenu;
class QSystemTrayIcon;
class TrackingStatus;
struct ViewParts;

/// The icon in the tray of the desktop. It offers nothing that is not to be had otherwise.
class TrayIcon : public QObject {
    Q_OBJECT

public:
    explicit TrayIcon(const ViewParts& parts);
    ~TrayIcon() override;

Q_SIGNALS:
    void openRequested();
    void checkRequested();
    void quitRequested();

private:
    std::unique_ptr<TrackingStatus> m_status;
    std::unique_ptr<QMenu> m_menu;
    std::unique_ptr<QSystemTrayIcon> m_icon;
};
