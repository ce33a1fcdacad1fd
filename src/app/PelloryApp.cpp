// SPDX-License-Identifier: GPL-3.0-or-later
#include "PelloryApp.h"

#include "Alerts.h"
#include "AppSettings.h"
#include "InOfficeCheck.h"
#include "LostStore.h"
#include "ModelContainer.h"
#include "ModelContext.h"
#include "StoreError.h"
#include "StoreFile.h"
#include "StoreFolder.h"

#include <QDeadlineTimer>
#include <QFileInfo>
#include <QLoggingCategory>

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(logApp, "pellory.app", QtInfoMsg)

// How long one attempt to open a locked store takes, in milliseconds. Short, so that a notice stays alive meanwhile.
constexpr int attemptTimeout = 5;

} // namespace

PelloryApp::PelloryApp(const QString& dataFolder, Alerts& alerts, std::chrono::milliseconds lockTimeout)
    : m_alerts(alerts)
    , m_storeFile(storeFileIn(dataFolder))
    , m_folder(QFileInfo(m_storeFile).path())
    , m_lockTimeout(lockTimeout)
    , m_lock(m_storeFile)
{
    qCDebug(logApp, "fileURL swift data location: %s", qUtf8Printable(m_storeFile));
    createFolder();
    lockStore();
    openStore();
    qCDebug(logApp, "Checking if in office every %lld seconds", qint64(checkInterval(*m_settings).count()));
}

PelloryApp::~PelloryApp() = default;

void PelloryApp::createFolder()
{
    const auto error = createStoreFolder(m_storeFile);
    if (!error)
        return;
    const QString reason = QString::fromStdString(error.message());
    m_alerts.showCritical(tr("Cannot start Pellory Tracker"), tr("Could not create app directory: %1").arg(reason));
    throw FatalStop(u"Could not create directory at %1 for Pellory SwiftData app store. %2"_s.arg(m_folder, reason));
}

void PelloryApp::lockStore()
{
    if (m_lock.acquire(m_lockTimeout / 10))
        return;
    m_alerts.showCritical(
        tr("Pellory is running already"),
        tr("Another Pellory is using your data, perhaps in another session, and cannot be reached from "
           "here. Two programs would erase each other's marks. Use its window, or end it and start "
           "Pellory again."));
    throw FatalStop(u"Another Pellory uses the data in %1"_s.arg(m_folder));
}

void PelloryApp::openStore()
{
    const QFileInfo file(m_storeFile);
    if (!file.exists())
        m_lostStore = LostStore::Missing;
    if (file.exists() && !file.isReadable()) {
        m_alerts.showCritical(tr("Fatal Error"),
                              tr("Cannot read app swift data store. You do not have read permissions on %1. Fix the "
                                 "permissions and restart the app.")
                                  .arg(m_storeFile));
        throw FatalStop(u"Cannot read app swift data store. You do not have read permissions on %1. Fix the "
                        "permissions and re-start app."_s.arg(m_storeFile));
    }
    auto failure = tryToOpen();
    if (failure) {
        offerToDelete(*failure);
        failure = tryToOpen();
    }
    if (!failure)
        return;
    const QString reason = failure->description();
    m_alerts.showCritical(tr("Fatal Error"), tr("Could not load data store at %1. %2").arg(m_storeFile, reason));
    throw FatalStop(u"Could not load data store, giving up.: %1: %2"_s.arg(m_storeFile, reason));
}

// Other programs may lock the store for a moment again and again, so a free moment is looked for.
std::optional<StoreError> PelloryApp::tryToOpen()
{
    const QDeadlineTimer end(m_lockTimeout);
    const QDeadlineTimer silence(m_lockTimeout / 10);
    std::shared_ptr<void> notice;
    auto failure = openOnce();
    while (failure && failure->cause() == StoreError::Cause::Lock && !end.hasExpired()) {
        if (!notice && silence.hasExpired())
            notice = m_alerts.showNotice(tr("Waiting for Your Data"),
                                         tr("Another program is using the data store. Pellory starts as soon as it is "
                                            "free."));
        QCoreApplication::processEvents();
        failure = openOnce();
    }
    if (failure)
        qCCritical(logApp, "%s", failure->what());
    return failure;
}

std::optional<StoreError> PelloryApp::openOnce()
{
    try {
        m_container = std::make_unique<ModelContainer>(ModelConfiguration{u"Example"_s, m_storeFile, attemptTimeout});
        findOrCreateSettings();
        return {};
    } catch (const StoreError& error) {
        m_container.reset();
        return error;
    }
}

void PelloryApp::offerToDelete(const StoreError& reason)
{
    QString text = tr("Could not load the app's data store. It's probably corrupted. Do you want reset all the app's "
                      "data? You will lose all data. This action cannot be undone.");
    const auto newParagraph = "\n\n"_L1;
    text += newParagraph + reason.description();
    if (reason.cause() != StoreError::Cause::Damage)
        text += newParagraph + tr("This does not mean that your data is damaged. Choose Cancel to keep it.");
    const bool isDelete = m_alerts.confirmWarning(tr("Delete File?"), text, tr("Delete"), tr("Cancel"));
    if (!isDelete)
        return;
    try {
        removeStoreFile(m_storeFile);
        m_lostStore = LostStore::Deleted;
    } catch (const StoreError& error) {
        m_alerts.showCritical(tr("Fatal Error"), tr("Could not remove app data store: %1").arg(error.description()));
        throw FatalStop(u"Could not remove app data store: "_s + error.description());
    }
}

void PelloryApp::findOrCreateSettings()
{
    ModelContext& context = m_container->mainContext();
    const auto stored = context.fetchSettings();
    if (!stored.isEmpty()) {
        m_settings = stored.first();
        return;
    }
    m_settings = std::make_shared<AppSettings>();
    context.insert(m_settings);
}
