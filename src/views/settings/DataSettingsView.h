// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "BackupFolder.h"
#include "DayDifference.h"

#include <QFutureWatcher>
#include <QHash>
#include <QWidget>

class BackupService;
class Button;
class ModelContext;
class QLabel;
class QVBoxLayout;

/// Where the data is, and its backups.
class DataSettingsView : public QWidget {
    Q_OBJECT

public:
    DataSettingsView(BackupService& backups, ModelContext& context, QWidget* parent = nullptr);

    /// Shows what was done, and a screen reader says it.
    void showMessage(const QString& message);
    /// Gives the focus to the button of a backup.
    void focusBackup(const QString& path);

Q_SIGNALS:
    void restoreRequested(const BackupFile& backup);

protected:
    bool event(QEvent* event) override;

private:
    struct Row {
        QWidget* whole;
        QLabel* time;
        QLabel* details;
        Button* restore;
    };

    void addFolder(QVBoxLayout& column);
    void addBackups(QVBoxLayout& column);
    void openFolder();
    void showProblem();
    void refresh();
    [[nodiscard]] Row makeRow();
    void showBackup(const Row& row, const BackupFile& backup);
    /// Counts what differs in the first backup of which it is not known yet.
    void countNext();
    void showCount();

    BackupService& m_backups;
    ModelContext& m_context;
    QLabel* m_folderProblem;
    QLabel* m_message;
    QLabel* m_problem;
    Button* m_backUp;
    QVBoxLayout* m_list;
    QLabel* m_empty;
    QList<BackupFile> m_files;
    QList<Row> m_rows;
    /// What is known of backups, by path.
    QHash<QString, QString> m_findings;
    QSet<QString> m_unsound;
    bool m_isOutdated = false;
    /// Whether a person waits for a backup.
    bool m_isAsked = false;
    /// The backup that is being read.
    QString m_counted;
    /// Whether the days may have changed since it is being read.
    bool m_isCountOutdated = false;
    QFutureWatcher<QList<DayDifference>> m_count;
};
