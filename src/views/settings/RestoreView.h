// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DayDifference.h"

#include <QFutureWatcher>
#include <QWidget>

class BackupService;
class Button;
class QLabel;
class RestoreModel;
class RestoreTree;
struct BackupFile;

/// Shows the days that restoring a backup would change, and restores those of the months that are checked.
class RestoreView : public QWidget {
    Q_OBJECT

public:
    RestoreView(BackupService& backups, const BackupFile& backup, QWidget* parent = nullptr);

Q_SIGNALS:
    /// The view is to be closed. The message says what was done; it is empty if nothing was.
    void finished(const QString& message);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void build(const BackupFile& backup);
    void showDays();
    /// Says why there is nothing to choose from.
    void showNothing(const QString& reason);
    void say(const QString& message);
    void refreshButton();
    void restore();

    BackupService& m_backups;
    QFutureWatcher<QList<DayDifference>> m_reading;
    RestoreModel* m_model = nullptr;
    QLabel* m_message;
    QWidget* m_card = nullptr;
    RestoreTree* m_tree;
    Button* m_restore;
    Button* m_cancel;
    /// How many days are being restored.
    qsizetype m_restoring = 0;
};
