// SPDX-License-Identifier: GPL-3.0-or-later
#include "LostDataAlert.h"

#include "BackupService.h"
#include "BackupTexts.h"
#include "Button.h"
#include "LostStore.h"
#include "StoreError.h"

#include <QLayout>
#include <QSet>

using namespace Qt::StringLiterals;

LostDataAlert::LostDataAlert(BackupService& backups, LostStore how, const BackupFile& backup, QWidget* parent)
    : AlertCard(parent)
    , m_backups(backups)
    , m_path(backup.path)
    , m_title(how == LostStore::Deleted ? tr("Your Data Was Reset") : tr("Your Data Was Not Found"))
{
    layout()->setContentsMargins(24, 12, 24, 20);
    auto* decline = addButton(u"declineBackup"_s, tr("Not Now"));
    m_restore = addButton(u"restoreBackup"_s, tr("Restore..."));
    m_restore->setProminent(true);
    setTexts(m_title, tr("A backup of %1 can be brought back.").arg(backup_texts::time(backup.made)));
    connect(decline, &QAbstractButton::clicked, this, [this] {
        hide();
        Q_EMIT declined();
    });
    connect(m_restore, &QAbstractButton::clicked, this, &LostDataAlert::advance);
    connect(&m_reading, &QFutureWatcherBase::finished, this, &LostDataAlert::showContents);
    connect(&backups, &BackupService::restoreFailed, this, [this](const QString& reason) {
        m_restore->setEnabled(true);
        setTexts(m_title, tr("Nothing was restored. %1").arg(reason));
    });
}

void LostDataAlert::advance()
{
    if (m_isShown) {
        m_restore->setEnabled(false); // a second press would replace what the first has brought back
        m_backups.replaceStore(m_path);
    } else if (!m_reading.isRunning()) {
        m_reading.setFuture(m_backups.read(m_path));
    }
}

void LostDataAlert::showContents()
{
    try {
        const DayStates states = m_reading.result();
        QSet<QDate> months;
        qsizetype days = 0;
        for (auto day = states.begin(); day != states.end(); ++day) {
            if (day->state == DayState::UNKNOWN)
                continue;
            ++days;
            months.insert(day.key().addDays(1 - day.key().day()));
        }
        m_isShown = true;
        m_restore->setText(tr("Restore"));
        setTexts(m_title,
                 tr("In the backup: %1 in %2, and your goals and settings. It replaces what is here now, which is "
                    "kept beside it as Pellory.store.replaced.")
                     .arg(backup_texts::markedDays(days), backup_texts::months(months.size())));
    } catch (const StoreError& error) {
        setTexts(m_title, error.description());
    }
}
