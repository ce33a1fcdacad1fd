// SPDX-License-Identifier: GPL-3.0-or-later
#include "ModelContainer.h"

#include "Connection.h"
#include "ModelContext.h"
#include "Schema.h"
#include "StoreError.h"
#include "StoreFile.h"
#include "StoreMigration.h"
#include "Verification.h"

#include <QFile>

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Transaction.h>

ModelContainer::ModelContainer(ModelConfiguration configuration)
    : ModelContainer(std::move(configuration), pellorySchema())
{
}

ModelContainer::ModelContainer(ModelConfiguration configuration, const Schema& schema)
    : m_configuration(std::move(configuration))
{
    try {
        open(schema);
    } catch (const SQLite::Exception& error) {
        throw storeError(error);
    }
}

ModelContainer::~ModelContainer() = default;

void ModelContainer::open(const Schema& schema)
{
    if (!QFile::exists(m_configuration.path))
        createStoreFile(m_configuration.path, schema);
    m_database = std::make_unique<SQLite::Database>(
        connectToStore(m_configuration.path.toStdString(), m_configuration.lockTimeout));
    // One transaction, so that all of it sees the same store, and a migration is undone if anything fails.
    SQLite::Transaction transaction(*m_database);
    const int version = verifyStore(*m_database, schema, VerificationDepth::ForOpening);
    if (version < schema.version())
        migrateStore(*m_database, schema, version);
    m_context = std::make_unique<ModelContext>(*m_database);
    transaction.commit();
    m_context->acceptFile();
    // The whole file has passed through the page cache, and little of it is needed soon.
    m_database->exec("PRAGMA shrink_memory");
    m_database->setBusyTimeout(saveLockTimeout);
}
