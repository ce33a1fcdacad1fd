// SPDX-License-Identifier: GPL-3.0-or-later
#include "ModelContainer.h"

#include "ModelContext.h"
#include "Schema.h"
#include "StoreError.h"
#include "StoreFile.h"

#include <QFile>

#include <SQLiteCpp/Database.h>

ModelContainer::ModelContainer(ModelConfiguration configuration)
    : m_configuration(std::move(configuration))
{
    try {
        open();
    } catch (const SQLite::Exception& error) {
        throw StoreError(descriptionOf(error));
    }
}

ModelContainer::~ModelContainer() = default;

void ModelContainer::open()
{
    if (!QFile::exists(m_configuration.path))
        createStoreFile(m_configuration.path);
    m_database = std::make_unique<SQLite::Database>(
        connectToStore(m_configuration.path.toStdString(), m_configuration.lockTimeout));
    verifyStore(*m_database);
    // The whole file has passed through the page cache, and little of it is needed soon.
    m_database->exec("PRAGMA shrink_memory");
    m_database->setBusyTimeout(saveLockTimeout);
    m_context = std::make_unique<ModelContext>(*m_database);
    // Goals and settings are few and needed at once; reading them here makes damage a failure of the opening.
    static_cast<void>(m_context->fetchSettings());
}
