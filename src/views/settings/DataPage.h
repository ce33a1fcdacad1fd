// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStackedWidget>

class BackupService;
class Clock;
class CountingRecords;
class DataSettingsView;
class ExchangeCard;
class ModelContext;
class Page;
class ViewSettings;
struct BackupFile;

/// The page of the settings about the data: the backups and what is exported and imported, or what a backup would
/// restore or a list of days would change.
class DataPage : public QStackedWidget {
    Q_OBJECT

public:
    DataPage(BackupService& backups, ModelContext& context, CountingRecords& counting, const Clock& clock,
             ViewSettings& viewSettings, QWidget* parent = nullptr);

private:
    void showRestore(const BackupFile& backup);
    void showImport(const QString& path);
    /// Shows a view in the place of the cards.
    void show(QWidget* view);
    void showCards();

    BackupService& m_backups;
    CountingRecords& m_counting;
    DataSettingsView* m_list;
    ExchangeCard* m_exchange;
    Page* m_cards;
    QWidget* m_other = nullptr;
};
