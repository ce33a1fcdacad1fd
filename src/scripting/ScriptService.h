// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DayCommands.h"

#include <QObject>
#include <QPointer>
#include <QProperty>

class BackupService;
class PelloryInterface;

/// What the running program does for scripts, and tells them when something has changed.
class ScriptService : public QObject {
    Q_OBJECT

public:
    /// `checkNow` starts a check.
    ScriptService(const DayCommands::Parts& parts, BackupService& backups, std::function<void()> checkNow);
    ~ScriptService() override;

    /// Offers the interface at an object that is registered on the session bus with its adaptors. To be called once the
    /// program has nothing more urgent to do.
    void start(QObject& host);

    [[nodiscard]] DayCommands& days() { return m_days; }
    /// Throws a CommandError if tracking is off, or waits for the first run.
    void runCheck();
    /// Calls one of these with the file, or with the reason.
    using Ending = std::function<void(const QString&)>;
    void backUp(const Ending& done, const Ending& failed);

private:
    void announceLater();

    DayCommands::Parts m_parts;
    DayCommands m_days;
    BackupService& m_backups;
    std::function<void()> m_checkNow;
    QPointer<PelloryInterface> m_interface;
    /// What figures depend on besides days and how they count.
    QProperty<QStringList> m_choices;
    QPropertyNotifier m_choicesFollower;
    bool m_isAnnouncing = false;
};
