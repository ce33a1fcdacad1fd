// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStackedWidget>

class BackupService;
class DataSettingsView;
class ModelContext;
struct BackupFile;

/// The page of the settings about the data: the backups, or what one of them would restore.
class DataPage : public QStackedWidget {
    Q_OBJECT

public:
    DataPage(BackupService& backups, ModelContext& context, QWidget* parent = nullptr);

private:
    void showRestore(const BackupFile& backup);
    void showBackups(const QString& message, const QString& path);

    BackupService& m_backups;
    DataSettingsView* m_list;
    QWidget* m_restore = nullptr;
};
