// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "StoreLock.h"

#include <QCoreApplication>

#include <chrono>
#include <memory>
#include <optional>
#include <stdexcept>

class Alerts;
class AppSettings;
class ModelContainer;
class StoreError;
enum class LostStore;

/// The program cannot start, and the person has been told why.
class FatalStop : public std::runtime_error {
public:
    explicit FatalStop(const QString& message)
        : std::runtime_error(message.toStdString())
    {
    }
};

/// Opens the data store, asking the person what to do if that fails, and finds or creates the settings.
class PelloryApp {
    Q_DECLARE_TR_FUNCTIONS(PelloryApp)

public:
    /// `dataFolder` is the user's folder for the data of applications. If another program has locked the store, that
    /// may take as long as `lockTimeout`, and after a tenth of it the person is told. Throws a FatalStop if no store
    /// can be opened.
    PelloryApp(const QString& dataFolder, Alerts& alerts,
               std::chrono::milliseconds lockTimeout = std::chrono::seconds(5));
    ~PelloryApp();
    PelloryApp(const PelloryApp&) = delete;
    PelloryApp& operator=(const PelloryApp&) = delete;

    [[nodiscard]] ModelContainer& container() { return *m_container; }
    [[nodiscard]] AppSettings& settings() { return *m_settings; }
    /// Why the store is new, if it is.
    [[nodiscard]] std::optional<LostStore> lostStore() const { return m_lostStore; }

private:
    void createFolder();
    void lockStore();
    void openStore();
    [[nodiscard]] std::optional<StoreError> tryToOpen();
    [[nodiscard]] std::optional<StoreError> openOnce();
    void offerToDelete(const StoreError& reason);
    void findOrCreateSettings();

    Alerts& m_alerts;
    QString m_storeFile;
    QString m_folder;
    std::chrono::milliseconds m_lockTimeout;
    StoreLock m_lock;
    std::optional<LostStore> m_lostStore;
    std::unique_ptr<ModelContainer> m_container;
    std::shared_ptr<AppSettings> m_settings;
};
