// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "AlertCard.h"
#include "BackupContents.h"

#include <QFutureWatcher>

class BackupService;
enum class LostStore;
struct BackupFile;

/// Offers a backup in the place of a store that was lost. Says first what is in it.
class LostDataAlert : public AlertCard {
    Q_OBJECT

public:
    LostDataAlert(BackupService& backups, LostStore how, const BackupFile& backup, QWidget* parent = nullptr);

Q_SIGNALS:
    void declined();

private:
    void advance();
    void showContents();

    BackupService& m_backups;
    QString m_path;
    QString m_title;
    QFutureWatcher<DayStates> m_reading;
    /// What is in the backup is known and shown.
    bool m_isShown = false;
    Button* m_restore;
};
