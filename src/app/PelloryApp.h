// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>

#include <memory>
#include <stdexcept>

class Alerts;
class AppSettings;
class ModelContainer;

/// Why the program cannot start. The person has been told.
class FatalStop : public std::runtime_error {
public:
    explicit FatalStop(const QString& message)
        : std::runtime_error(message.toStdString())
    {
    }
};

/// The application: it opens the data store, with the person's help where that fails, and holds the records that every
/// other part works on.
class PelloryApp {
    Q_DECLARE_TR_FUNCTIONS(PelloryApp)

public:
    /// Starts up. `dataFolder` is the folder of the user in which programs keep their data. Throws a FatalStop when
    /// there is no store to work on.
    PelloryApp(const QString& dataFolder, Alerts& alerts);
    ~PelloryApp();
    PelloryApp(const PelloryApp&) = delete;
    PelloryApp& operator=(const PelloryApp&) = delete;

    [[nodiscard]] ModelContainer& container() { return *m_container; }
    [[nodiscard]] AppSettings& settings() { return *m_settings; }

private:
    void createFolder();
    void openStore();
    [[nodiscard]] bool tryToOpen(QString& failure);
    void offerToDelete();
    void findOrCreateSettings();

    Alerts& m_alerts;
    QString m_folder;
    QString m_storeFile;
    std::unique_ptr<ModelContainer> m_container;
    std::shared_ptr<AppSettings> m_settings;
};
