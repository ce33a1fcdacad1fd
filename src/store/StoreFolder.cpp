// SPDX-License-Identifier: GPL-3.0-or-later
#include "StoreFolder.h"

#include <QString>

#include <filesystem>

using namespace Qt::StringLiterals;

QString storeFileIn(const QString& dataFolder)
{
    return dataFolder + "/Pellory/Pellory.store"_L1;
}

std::error_code createStoreFolder(const QString& storeFile)
{
    namespace fs = std::filesystem;
    const fs::path folder = fs::path(storeFile.toStdString()).parent_path();
    std::error_code error;
    fs::create_directories(folder.parent_path(), error);
    const bool isCreated = !error && fs::create_directory(folder, error);
    if (isCreated)
        fs::permissions(folder, fs::perms::owner_all, error);
    return error;
}
