// SPDX-License-Identifier: GPL-3.0-or-later
#include "FileBytes.h"

#include "FileError.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace {

[[noreturn]] void refuseUnreadable(const QString& reason)
{
    throw FileError(FileError::tr("The file cannot be read: %1. Choose another file.").arg(reason));
}

/// Opens a file without waiting, as a pipe would keep the program waiting for somebody to write.
void open(QFile& file)
{
    const int descriptor = ::open(QFile::encodeName(file.fileName()).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0)
        refuseUnreadable(QString::fromStdString(std::generic_category().message(errno)));
    struct stat status = {};
    if (!file.open(descriptor, QFile::ReadOnly, QFile::AutoCloseHandle)) {
        ::close(descriptor);
        refuseUnreadable(file.errorString());
    }
    if (fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode))
        refuseUnreadable(FileError::tr("it is a folder or a device"));
}

/// Returns whether the file took all bytes. A disk takes what it has room for, and refuses only what comes after that.
bool writeAll(QFileDevice& file, QByteArrayView rest)
{
    qint64 taken = 0;
    for (; !rest.isEmpty(); rest = rest.sliced(taken)) {
        taken = file.write(rest.data(), rest.size());
        if (taken <= 0)
            return false;
    }
    return true;
}

} // namespace

QByteArray readFile(const QString& path, qint64 maximumSize)
{
    QFile file(path);
    open(file);
    QByteArray bytes = file.read(maximumSize + 1);
    if (file.error() != QFile::NoError)
        refuseUnreadable(file.errorString());
    return bytes;
}

void writeFile(const QString& path, const QByteArray& bytes)
{
    const auto refuse = [](const QString& reason) {
        throw FileError(FileError::tr("The file cannot be written: %1. Choose another place.").arg(reason));
    };
    // A file would take the place of a device.
    if (const QFileInfo present(path); present.exists() && !present.isFile())
        refuse(FileError::tr("it is a folder or a device"));
    QSaveFile file(path);
    // A small file is written by flush(), and commit() would not say that the disk is full.
    if (!file.open(QFile::WriteOnly) || !writeAll(file, bytes) || !file.flush() || !file.commit())
        refuse(file.errorString());
}
