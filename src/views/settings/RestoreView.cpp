// SPDX-License-Identifier: GPL-3.0-or-later
#include "RestoreView.h"

#include "Accessibility.h"
#include "BackupService.h"
#include "BackupTexts.h"
#include "Button.h"
#include "ButtonRow.h"
#include "Card.h"
#include "DayAbsences.h"
#include "Labels.h"
#include "RestoreModel.h"
#include "RestoreTree.h"
#include "StoreError.h"

#include <QKeyEvent>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

RestoreView::RestoreView(BackupService& backups, const BackupFile& backup, QWidget* parent)
    : QWidget(parent)
    , m_backups(backups)
    , m_message(labels::dim(tr("Reading the backup...")))
    , m_tree(new RestoreTree)
    , m_restore(new Button({}))
    , m_cancel(new Button(tr("Cancel")))
{
    build(backup);
    refreshButton();
    connect(m_cancel, &QAbstractButton::clicked, this, [this] { Q_EMIT finished({}); });
    connect(m_restore, &QAbstractButton::clicked, this, &RestoreView::restore);
    connect(&backups, &BackupService::restored, this, [this](qint64 group) {
        if (m_restoring > 0)
            Q_EMIT finished(backup_texts::restored(group == 0 ? 0 : m_restoring));
    });
    connect(&backups, &BackupService::restoreFailed, this, [this](const QString& reason) {
        m_restoring = 0;
        refreshButton();
        say(tr("Nothing was restored. %1").arg(reason));
    });
    connect(&m_reading, &QFutureWatcherBase::finished, this, &RestoreView::showDays);
    m_reading.setFuture(backups.compare(backup.path));
}

void RestoreView::build(const BackupFile& backup)
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(pageMargins);
    column->setSpacing(8);
    column->addWidget(labels::heading(tr("Restore the Backup of %1").arg(backup_texts::time(backup.made))));
    column->addWidget(m_message);
    m_card = Card::around(m_tree);
    m_tree->setObjectName("days"_L1);
    m_tree->setAccessibleName(tr("Days that differ"));
    m_card->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    column->addWidget(m_card, 1);
    column->addStretch(); // in the place of the card where there is nothing to choose from
    m_restore->setObjectName("restore"_L1);
    m_restore->setProminent(true);
    m_cancel->setObjectName("cancel"_L1);
    auto* buttons = new ButtonRow(Qt::AlignRight);
    buttons->add(m_cancel);
    buttons->add(m_restore);
    column->addWidget(buttons);
}

void RestoreView::showDays()
{
    QList<DayDifference> days;
    try {
        days = m_reading.result();
    } catch (const StoreError& error) {
        return showNothing(error.description());
    }
    if (days.isEmpty())
        return showNothing(tr("Every day is as it was in this backup. There is nothing to restore."));
    const auto describe = [this](DayState state, int kind) { return m_backups.absences().describe(state, kind); };
    m_model = new RestoreModel(days, {}, describe, this);
    m_tree->setModel(m_model);
    connect(m_model, &RestoreModel::checkedChanged, this, &RestoreView::refreshButton);
    refreshButton();
    say(tr(
        "What each day is now, and what it was in the backup. Choose the months to restore. A backup of what is here "
        "now is made first."));
    if (window()->focusWidget() == m_cancel)
        m_tree->setFocus(Qt::OtherFocusReason);
}

void RestoreView::showNothing(const QString& reason)
{
    m_card->hide();
    m_restore->hide();
    m_cancel->setText(tr("Close"));
    m_cancel->updateGeometry();
    say(reason);
}

void RestoreView::say(const QString& message)
{
    m_message->setText(message);
    announce(*this, message);
}

void RestoreView::refreshButton()
{
    const auto count = m_model == nullptr ? 0 : m_model->checkedCount();
    m_restore->setText(count == 1 ? tr("Restore 1 Day") : tr("Restore %n Days", nullptr, static_cast<int>(count)));
    const bool isEnabled = count > 0 && m_restoring == 0;
    // Left alone, the focus would move on to a button that does something else.
    if (!isEnabled && window()->focusWidget() == m_restore)
        m_cancel->setFocus(Qt::OtherFocusReason);
    m_restore->setEnabled(isEnabled);
    m_tree->setEnabled(m_restoring == 0);
}

void RestoreView::restore()
{
    const auto days = m_model->checkedDays();
    m_restoring = days.size();
    refreshButton();
    say(tr("Restoring..."));
    m_backups.restore(days);
}

bool RestoreView::event(QEvent* event)
{
    // Otherwise the key would close the window.
    if (event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape)
        event->accept();
    return QWidget::event(event);
}

void RestoreView::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        Q_EMIT finished({});
    else
        QWidget::keyPressEvent(event);
}
