// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DayImport.h"
#include "DaysCsvReader.h"

#include <QFutureWatcher>
#include <QWidget>

#include <optional>

class BackupService;
class Button;
class CountingRecords;
class QLabel;
class QVBoxLayout;
class RestoreModel;
class RestoreTree;
class Switch;

/// Shows what importing a list of days would change, and imports what is chosen. The file is read in another thread.
class ImportView : public QWidget {
    Q_OBJECT

public:
    ImportView(BackupService& backups, CountingRecords& counting, const QString& path, QWidget* parent = nullptr);

Q_SIGNALS:
    /// The view is to be closed. The message says what was done; it is empty if nothing was.
    void finished(const QString& message);
    /// The view is to be closed, as the file cannot be read.
    void failed(const QString& reason);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void build(const QString& fileName);
    void startReading(const QString& path);
    void takeContents();
    void showImport();
    void showProblems(const QStringList& problems);
    /// Whether there is anything to choose.
    [[nodiscard]] bool hasAnything() const;
    [[nodiscard]] QString summary() const;
    [[nodiscard]] QString notesText() const;
    [[nodiscard]] QString daysOffText() const;
    [[nodiscard]] qsizetype chosenCount() const;
    void say(const QString& message);
    void refreshButton();
    void import();
    void reportImport();

    BackupService& m_backups;
    CountingRecords& m_counting;
    QFutureWatcher<DaysCsvContents> m_reading;
    std::optional<DayImport> m_found;
    RestoreModel* m_model = nullptr;
    QLabel* m_message;
    QVBoxLayout* m_problems;
    RestoreTree* m_tree;
    QWidget* m_card = nullptr;
    Switch* m_notes;
    Switch* m_daysOff;
    Button* m_import;
    Button* m_cancel;
    bool m_isImporting = false;
};
