// SPDX-License-Identifier: GPL-3.0-or-later
#include "DataSettingsView.h"

#include "BackupService.h"
#include "BackupTexts.h"
#include "Button.h"
#include "Follow.h"
#include "Labels.h"
#include "ModelContext.h"
#include "StoreError.h"
#include "TextField.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QHBoxLayout* rowOf(QLabel* text, QWidget* button)
{
    auto* row = new QHBoxLayout;
    row->addWidget(text, 1);
    row->addWidget(button);
    return row;
}

} // namespace

DataSettingsView::DataSettingsView(BackupService& backups, ModelContext& context, QWidget* parent)
    : QWidget(parent)
    , m_backups(backups)
    , m_context(context)
    , m_folderProblem(labels::error(tr("No program opens folders here. Use the path above.")))
    , m_message(labels::text({}))
    , m_problem(labels::error({}))
    , m_backUp(new Button(tr("Back Up Now")))
    , m_list(new QVBoxLayout)
    , m_empty(labels::dim(tr("There is no backup yet.")))
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(8);
    addFolder(*column);
    addBackups(*column);
    connect(&m_count, &QFutureWatcherBase::finished, this, &DataSettingsView::showCount);
    connect(&backups, &BackupService::made, this, [this](const BackupFile& backup) {
        const QString time = QLocale().toString(backup.made.time(), QLocale::ShortFormat);
        if (std::exchange(m_isAsked, false))
            showMessage(tr("Backed up at %1.", "time of day").arg(time));
        refresh();
    });
    connect(&context, &ModelContext::saved, this, [this] { m_isOutdated = true; });
    follow(backups.isMaking(), this,
           [this] { m_backUp->setText(m_backups.isMaking() ? tr("Backing Up...") : tr("Back Up Now")); });
    follow(backups.problem(), this, [this] { showProblem(); });
}

void DataSettingsView::addFolder(QVBoxLayout& column)
{
    auto* open = new Button(tr("Open Folder"));
    open->setObjectName("openFolder"_L1);
    connect(open, &QAbstractButton::clicked, this, &DataSettingsView::openFolder);
    column.addLayout(rowOf(labels::heading(tr("Your Data")), open));
    column.addWidget(labels::dim(tr("All of it is in one file on this computer:")));
    auto* path = new TextField(tr("Data file"));
    path->setObjectName("dataPath"_L1);
    path->setReadOnly(true);
    path->setText(m_context.filePath());
    path->setCursorPosition(0);
    column.addWidget(path);
    m_folderProblem->hide();
    column.addWidget(m_folderProblem);
}

void DataSettingsView::addBackups(QVBoxLayout& column)
{
    column.addSpacing(8);
    m_backUp->setObjectName("backUp"_L1);
    column.addLayout(rowOf(labels::strong(tr("Backups")), m_backUp));
    column.addWidget(labels::dim(tr("A backup is made on each day on which something has changed. Those of the last "
                                    "seven days, five weeks and twelve months are kept.")));
    m_message->hide();
    m_problem->hide();
    column.addWidget(m_message);
    column.addWidget(m_problem);
    m_list->setSpacing(10);
    m_list->addWidget(m_empty);
    column.addLayout(m_list);
    connect(m_backUp, &QAbstractButton::clicked, this, [this] {
        if (m_backups.isMaking())
            return;
        m_isAsked = true;
        m_backups.makeNow();
    });
}

void DataSettingsView::openFolder()
{
    const QString folder = QFileInfo(m_context.filePath()).path();
    m_folderProblem->setVisible(!QDesktopServices::openUrl(QUrl::fromLocalFile(folder)));
}

void DataSettingsView::showMessage(const QString& message)
{
    m_message->setText(message);
    m_message->show();
    announce(*this, message);
}

void DataSettingsView::focusBackup(const QString& path)
{
    const auto found = std::ranges::find(m_files, path, &BackupFile::path);
    QWidget* button = found == m_files.end() ? m_backUp : m_rows.at(found - m_files.begin()).restore;
    button->clearFocus(); // which the page may have given back already, without the ring
    const bool isByKey = window()->testAttribute(Qt::WA_KeyboardFocusChange);
    button->setFocus(isByKey ? Qt::TabFocusReason : Qt::OtherFocusReason);
}

void DataSettingsView::showProblem()
{
    const QString& problem = m_backups.problem();
    m_problem->setText(tr("The last backup failed. %1 Pellory tries again.").arg(problem));
    m_problem->setVisible(!problem.isEmpty());
    if (!problem.isEmpty())
        m_message->hide();
}

bool DataSettingsView::event(QEvent* event)
{
    const bool handled = QWidget::event(event);
    if (event->type() == QEvent::Show || (event->type() == QEvent::WindowActivate && isVisible() && m_isOutdated))
        refresh();
    return handled;
}

void DataSettingsView::refresh()
{
    m_files = m_backups.folder().backups();
    m_isOutdated = false;
    m_findings.clear();
    m_isCountOutdated = true;
    m_empty->setVisible(m_files.isEmpty());
    while (m_rows.size() < m_files.size())
        m_rows.append(makeRow());
    while (m_rows.size() > m_files.size())
        delete m_rows.takeLast().whole;
    for (qsizetype i = 0; i < m_files.size(); ++i)
        showBackup(m_rows.at(i), m_files.at(i));
    countNext();
}

DataSettingsView::Row DataSettingsView::makeRow()
{
    const Row row{new QWidget, labels::text({}), labels::dim({}), new Button(tr("Restore..."))};
    auto* texts = new QVBoxLayout;
    texts->setSpacing(0);
    texts->addWidget(row.time);
    texts->addWidget(row.details);
    auto* line = new QHBoxLayout(row.whole);
    line->setContentsMargins({});
    line->addLayout(texts, 1);
    line->addWidget(row.restore);
    m_list->addWidget(row.whole);
    connect(row.restore, &QAbstractButton::clicked, this,
            [this, place = m_rows.size()] { Q_EMIT restoreRequested(BackupFile(m_files.at(place))); });
    return row;
}

void DataSettingsView::showBackup(const Row& row, const BackupFile& backup)
{
    const QString time = backup_texts::time(backup.made);
    QStringList details{QLocale().formattedDataSize(backup.size, 0, QLocale::DataSizeSIFormat)};
    if (backup.isBeforeMigration)
        details += tr("made before an update");
    if (m_findings.contains(backup.path))
        details += m_findings.value(backup.path);
    row.time->setText(time);
    row.details->setText(details.join(u" · "_s));
    row.restore->setAccessibleName(tr("Restore the backup of %1").arg(time));
    row.restore->setAccessibleDescription(row.details->text());
    row.restore->setEnabled(!m_unsound.contains(backup.path));
}

void DataSettingsView::countNext()
{
    const auto next =
        std::ranges::find_if(m_files, [this](const BackupFile& backup) { return !m_findings.contains(backup.path); });
    if (!m_counted.isEmpty() || !isVisible() || next == m_files.end())
        return;
    m_counted = next->path;
    m_isCountOutdated = false;
    m_count.setFuture(m_backups.compare(m_counted));
}

void DataSettingsView::showCount()
{
    const QString path = std::exchange(m_counted, {});
    QString finding;
    try {
        finding = backup_texts::difference(m_count.result().size());
        m_unsound.remove(path);
    } catch (const StoreError& error) {
        finding = error.cause() == StoreError::Cause::Damage ? tr("damaged") : error.description();
        m_unsound.insert(path);
    }
    if (!m_isCountOutdated) {
        m_findings.insert(path, finding);
        const auto found = std::ranges::find(m_files, path, &BackupFile::path);
        if (found != m_files.end())
            showBackup(m_rows.at(found - m_files.begin()), *found);
    }
    countNext();
}
