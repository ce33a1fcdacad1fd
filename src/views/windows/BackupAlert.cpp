// SPDX-License-Identifier: GPL-3.0-or-later
#include "BackupAlert.h"

#include "BackupService.h"
#include "Button.h"
#include "Follow.h"

#include <QLayout>

using namespace Qt::StringLiterals;

BackupAlert::BackupAlert(BackupService& backups, QWidget* parent)
    : AlertCard(parent)
    , m_backups(backups)
{
    layout()->setContentsMargins(24, 12, 24, 20);
    auto* close = addButton(u"closeBackupAlert"_s, tr("Close"));
    auto* retry = addButton(u"retryBackup"_s, tr("Try Again"));
    retry->setProminent(true);
    connect(close, &QAbstractButton::clicked, this, [this] {
        m_isClosed = true;
        hide();
    });
    connect(retry, &QAbstractButton::clicked, this, [this] {
        if (!m_backups.isMaking())
            m_backups.makeNow();
    });
    follow(backups.problem(), this, [this] { refresh(); });
}

void BackupAlert::refresh()
{
    const QString& problem = m_backups.problem();
    if (problem.isEmpty())
        m_isClosed = false;
    else
        setTexts(tr("Backup Not Made"), tr("%1 Your data itself is saved. Pellory tries again.").arg(problem));
    setVisible(!problem.isEmpty() && !m_isClosed);
}
