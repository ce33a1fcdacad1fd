// SPDX-License-Identifier: GPL-3.0-or-later
#include "DataPage.h"

#include "BackupFolder.h"
#include "DataSettingsView.h"
#include "Page.h"
#include "RestoreView.h"

#include <utility>

using namespace Qt::StringLiterals;

DataPage::DataPage(BackupService& backups, ModelContext& context, QWidget* parent)
    : QStackedWidget(parent)
    , m_backups(backups)
    , m_list(new DataSettingsView(backups, context))
{
    addWidget(makeCardPage(m_list));
    connect(m_list, &DataSettingsView::restoreRequested, this, &DataPage::showRestore);
}

void DataPage::showRestore(const BackupFile& backup)
{
    auto* view = new RestoreView(m_backups, backup);
    m_restore = new Page(view);
    addWidget(m_restore);
    setCurrentWidget(m_restore);
    view->findChild<QWidget*>("cancel"_L1)->setFocus(Qt::OtherFocusReason);
    connect(view, &RestoreView::finished, this,
            [this, path = backup.path](const QString& message) { showBackups(message, path); });
}

void DataPage::showBackups(const QString& message, const QString& path)
{
    setCurrentIndex(0);
    std::exchange(m_restore, nullptr)->deleteLater();
    if (!message.isEmpty())
        m_list->showMessage(message);
    m_list->focusBackup(path);
}
