// SPDX-License-Identifier: GPL-3.0-or-later
#include "ImportView.h"

#include "BackupService.h"
#include "BackupTexts.h"
#include "Button.h"
#include "ButtonRow.h"
#include "Card.h"
#include "FileError.h"
#include "Labels.h"
#include "RestoreModel.h"
#include "RestoreTree.h"
#include "StoreError.h"
#include "Switch.h"
#include "TextArea.h"
#include "WindowSize.h"

#include <QFileInfo>
#include <QKeyEvent>
#include <QPromise>
#include <QThreadPool>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostProblemLines = 4;

} // namespace

ImportView::ImportView(BackupService& backups, CountingRecords& counting, const QString& path, QWidget* parent)
    : QWidget(parent)
    , m_backups(backups)
    , m_counting(counting)
    , m_message(labels::dim(tr("Reading the file...")))
    , m_problems(new QVBoxLayout)
    , m_tree(new RestoreTree)
    , m_notes(new Switch({}))
    , m_daysOff(new Switch({}))
    , m_import(new Button(tr("Import")))
    , m_cancel(new Button(tr("Cancel")))
{
    build(QFileInfo(path).fileName());
    refreshButton();
    connect(m_cancel, &QAbstractButton::clicked, this, [this] { Q_EMIT finished({}); });
    connect(m_import, &QAbstractButton::clicked, this, &ImportView::import);
    connect(&backups, &BackupService::restored, this, &ImportView::reportImport);
    connect(&backups, &BackupService::restoreFailed, this, [this](const QString& reason) {
        m_isImporting = false;
        refreshButton();
        say(tr("Nothing was imported. %1").arg(reason));
    });
    connect(&m_reading, &QFutureWatcherBase::finished, this, &ImportView::takeContents);
    startReading(path);
}

void ImportView::build(const QString& fileName)
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(pageMargins);
    column->setSpacing(8);
    column->addWidget(labels::heading(tr("Days from %1", "file").arg(fileName)));
    column->addWidget(m_message);
    column->addLayout(m_problems);
    m_tree->setObjectName("importedDays"_L1);
    m_tree->setAccessibleName(tr("Days that the list would change"));
    m_card = Card::around(m_tree);
    m_card->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    column->addWidget(m_card, 1);
    m_notes->setObjectName("importNotes"_L1);
    m_daysOff->setObjectName("importDaysOff"_L1);
    for (Switch* toggle : {m_notes, m_daysOff}) {
        toggle->setChecked(true);
        toggle->hide();
        column->addWidget(toggle);
        connect(toggle, &QAbstractButton::toggled, this, &ImportView::refreshButton);
    }
    column->addStretch(); // in the place of the card where no day would change
    m_import->setObjectName("import"_L1);
    m_import->setProminent(true);
    m_cancel->setObjectName("cancel"_L1);
    auto* buttons = new ButtonRow(Qt::AlignRight);
    buttons->add(m_cancel);
    buttons->add(m_import);
    column->addWidget(buttons);
}

void ImportView::startReading(const QString& path)
{
    const auto promise = std::make_shared<QPromise<DaysCsvContents>>();
    promise->start();
    m_reading.setFuture(promise->future());
    QThreadPool::globalInstance()->start([promise, path] {
        try {
            promise->addResult(readDaysCsvFile(path));
        } catch (...) {
            promise->setException(std::current_exception());
        }
        promise->finish();
    });
}

void ImportView::takeContents()
{
    try {
        const DaysCsvContents contents = m_reading.result();
        m_found.emplace(contents.days, contents.kinds, m_backups.marker(), m_counting);
        if (!contents.problems.isEmpty())
            showProblems(contents.problems);
        showImport();
    } catch (const FileError& error) {
        Q_EMIT failed(tr("Nothing was imported. %1").arg(error.description()));
    } catch (const StoreError& error) {
        Q_EMIT failed(tr("Nothing was imported. %1").arg(error.description()));
    }
}

void ImportView::showImport()
{
    const auto describe = [this](DayState state, int kind) { return m_found->describe(state, kind); };
    m_model = new RestoreModel(m_found->newDays(), m_found->conflicts(), describe, this);
    m_tree->setModel(m_model);
    connect(m_model, &RestoreModel::checkedChanged, this, &ImportView::refreshButton);
    m_notes->setText(tr("Add %1", "number of notes or days off").arg(notesText()));
    m_daysOff->setText(tr("Add %1", "number of notes or days off").arg(daysOffText()));
    m_notes->setVisible(!m_found->notes().isEmpty());
    m_daysOff->setVisible(!m_found->daysOff().isEmpty());
    m_card->setVisible(m_model->rowCount() > 0);
    m_import->setVisible(hasAnything());
    m_cancel->setText(hasAnything() ? tr("Cancel") : tr("Close"));
    m_cancel->updateGeometry();
    refreshButton();
    say(summary());
    if (window()->focusWidget() == m_cancel && m_model->rowCount() > 0)
        m_tree->setFocus(Qt::OtherFocusReason);
}

void ImportView::showProblems(const QStringList& problems)
{
    m_problems->addWidget(labels::error(tr("Not everything in the file can be read:")));
    auto* list = new TextArea(static_cast<int>(qBound<qsizetype>(2, problems.size(), mostProblemLines)));
    list->setObjectName("problems"_L1);
    list->setAccessibleName(tr("What was left out"));
    list->setReadOnly(true);
    list->setPlainText(problems.join(u'\n'));
    m_problems->addWidget(list);
}

bool ImportView::hasAnything() const
{
    return m_model->rowCount() > 0 || !m_found->notes().isEmpty() || !m_found->daysOff().isEmpty();
}

QString ImportView::summary() const
{
    QStringList sentences;
    if (hasAnything())
        sentences += tr("Choose what to import. A backup of what is here now is made first.");
    else
        sentences += tr("There is nothing to import.");
    if (!m_found->conflicts().isEmpty())
        sentences += tr("Days that are marked otherwise here stay as they are, unless you choose them.");
    if (const auto count = m_found->sameCount(); count > 0)
        sentences += tr("Marked as in the list already: %1.").arg(backup_texts::days(count));
    if (const auto count = m_found->keptCount(); count > 0)
        sentences += tr("Notes and days off that differ and stay as they are here: %1.").arg(count);
    return sentences.join(u' ');
}

void ImportView::say(const QString& message)
{
    m_message->setText(message);
    announce(*this, message);
}

qsizetype ImportView::chosenCount() const
{
    return m_model == nullptr ? 0 : m_model->checkedCount();
}

void ImportView::refreshButton()
{
    const auto count = chosenCount();
    m_import->setText(count == 0   ? tr("Import")
                      : count == 1 ? tr("Import 1 Day")
                                   : tr("Import %n Days", nullptr, static_cast<int>(count)));
    m_import->updateGeometry();
    const bool isFurther = m_found && ((m_notes->isChecked() && !m_found->notes().isEmpty()) ||
                                       (m_daysOff->isChecked() && !m_found->daysOff().isEmpty()));
    const bool isEnabled = (count > 0 || isFurther) && !m_isImporting;
    // Left alone, the focus would move on to a button that does something else.
    if (!isEnabled && window()->focusWidget() == m_import)
        m_cancel->setFocus(Qt::OtherFocusReason);
    m_import->setEnabled(isEnabled);
    for (QWidget* choice :
         {static_cast<QWidget*>(m_tree), static_cast<QWidget*>(m_notes), static_cast<QWidget*>(m_daysOff)})
        choice->setEnabled(!m_isImporting);
}

// The window may be closed while the backup is made, so the choice is copied.
void ImportView::import()
{
    m_isImporting = true;
    refreshButton();
    say(tr("Importing..."));
    m_backups.backUpAndChange([found = *m_found, days = m_model->checkedDays(), notes = m_notes->isChecked(),
                               daysOff = m_daysOff->isChecked()] { return found.apply(days, notes, daysOff); });
}

void ImportView::reportImport()
{
    if (!m_isImporting)
        return;
    const auto count = chosenCount();
    QStringList parts;
    if (count > 0)
        parts += backup_texts::days(count);
    if (!m_notes->isHidden() && m_notes->isChecked())
        parts += notesText();
    if (!m_daysOff->isHidden() && m_daysOff->isChecked())
        parts += daysOffText();
    const QString done = tr("Imported: %1.").arg(parts.join(u", "_s));
    if (count == 0)
        Q_EMIT finished(done);
    else if (parts.size() > 1 || m_found->hasNewKinds())
        Q_EMIT finished(
            tr("%1 Ctrl+Z in the main window takes back what was marked; notes, days off and kinds of absence stay.")
                .arg(done));
    else
        Q_EMIT finished(tr("%1 Ctrl+Z in the main window takes this back.").arg(done));
}

QString ImportView::notesText() const
{
    const auto count = static_cast<int>(m_found->notes().size());
    return count == 1 ? tr("1 note") : tr("%n notes", nullptr, count);
}

QString ImportView::daysOffText() const
{
    const auto count = static_cast<int>(m_found->daysOff().size());
    return count == 1 ? tr("1 day off") : tr("%n days off", nullptr, count);
}

bool ImportView::event(QEvent* event)
{
    // Otherwise the key would close the window.
    if (event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape)
        event->accept();
    return QWidget::event(event);
}

void ImportView::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        Q_EMIT finished({});
    else
        QWidget::keyPressEvent(event);
}
