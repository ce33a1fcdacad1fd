// SPDX-License-Identifier: GPL-3.0-or-later
#include "Draft.h"

#include "StoreError.h"

#include <QDir>

#include <cerrno>
#include <system_error>

#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

Draft::Draft(const QString& path)
    : m_path(path)
    , m_file(path + ".new-XXXXXX"_L1)
{
    if (!m_file.open())
        fail(m_file.errorString());
}

bool Draft::hasContentsOf(const QString& path)
{
    QFile other(path);
    return other.open(QFile::ReadOnly) && m_file.seek(0) && m_file.readAll() == other.readAll();
}

void Draft::synchronise() const
{
    if (fsync(m_file.handle()) != 0)
        fail(QString::fromStdString(std::generic_category().message(errno)));
}

bool Draft::take(const QString& path)
{
    const bool isTaken = m_file.rename(path);
    if (!isTaken && !QFile::exists(path))
        fail(m_file.errorString());
    m_file.setAutoRemove(!isTaken);
    return isTaken;
}

void Draft::removeAbandoned(const QString& path)
{
    const QFileInfo file(path);
    const QString draft = file.fileName() + ".new-??????"_L1;
    for (const QString& name : file.dir().entryList({draft, draft + "-journal"_L1}, QDir::Files))
        file.dir().remove(name);
}

void Draft::fail(const QString& reason) const
{
    throw StoreError(StoreError::tr("The file %1 cannot be created: %2.").arg(m_path, reason),
                     StoreError::Cause::Obstacle);
}

void synchroniseFolder(const QString& folder)
{
    const int descriptor = open(folder.toStdString().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    fsync(descriptor);
    close(descriptor);
}
