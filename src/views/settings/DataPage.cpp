// SPDX-License-Identifier: GPL-3.0-or-later
#include "DataPage.h"

#include "BackupService.h"
#include "Card.h"
#include "DataSettingsView.h"
#include "ExchangeCard.h"
#include "ImportView.h"
#include "Page.h"
#include "RestoreView.h"
#include "WindowSize.h"

#include <QTimer>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::StringLiterals;

DataPage::DataPage(BackupService& backups, ModelContext& context, CountingRecords& counting, const Clock& clock,
                   ViewSettings& viewSettings, QWidget* parent)
    : QStackedWidget(parent)
    , m_backups(backups)
    , m_counting(counting)
    , m_list(new DataSettingsView(backups, context))
    , m_exchange(new ExchangeCard(backups.marker(), clock, viewSettings))
{
    auto* cards = new QWidget;
    auto* column = new QVBoxLayout(cards);
    column->setContentsMargins(pageMargins);
    column->setSpacing(14);
    column->addWidget(Card::around(m_list));
    column->addWidget(Card::around(m_exchange));
    column->addStretch();
    m_cards = new Page(cards);
    addWidget(m_cards);
    connect(m_list, &DataSettingsView::restoreRequested, this, &DataPage::showRestore);
    connect(m_exchange, &ExchangeCard::importRequested, this, &DataPage::showImport);
}

void DataPage::showRestore(const BackupFile& backup)
{
    auto* view = new RestoreView(m_backups, backup);
    show(view);
    connect(view, &RestoreView::finished, this, [this, path = backup.path](const QString& message) {
        showCards();
        if (!message.isEmpty())
            m_list->showMessage(message);
        m_list->focusBackup(path);
    });
}

void DataPage::showImport(const QString& path)
{
    auto* view = new ImportView(m_backups, m_counting, path);
    show(view);
    const auto goBack = [this] {
        showCards();
        m_exchange->focusImport();
        // Once it is laid out with the message.
        QTimer::singleShot(0, m_cards, [this] { m_cards->reveal(*m_exchange); });
    };
    connect(view, &ImportView::finished, this, [this, goBack](const QString& message) {
        m_exchange->showMessage(message);
        goBack();
    });
    connect(view, &ImportView::failed, this, [this, goBack](const QString& reason) {
        m_exchange->showProblem(reason);
        goBack();
    });
}

void DataPage::show(QWidget* view)
{
    m_other = new Page(view);
    addWidget(m_other);
    setCurrentWidget(m_other);
    view->findChild<QWidget*>("cancel"_L1)->setFocus(Qt::OtherFocusReason);
}

void DataPage::showCards()
{
    setCurrentIndex(0);
    std::exchange(m_other, nullptr)->deleteLater();
}
