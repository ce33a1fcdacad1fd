// SPDX-License-Identifier: GPL-3.0-or-later
#include "CalendarFile.h"

#include "CalendarReader.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace {

constexpr qint64 maximumSize = 10'000'000;

[[noreturn]] void refuseUnreadable(const QString& reason)
{
    throw CalendarFileError(CalendarFileError::tr("The file cannot be read: %1. Choose another file.").arg(reason));
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
        refuseUnreadable(CalendarFileError::tr("it is a folder or a device"));
}

} // namespace

CalendarFileContents readCalendarFile(const QString& path, QDate today)
{
    QFile file(path);
    open(file);
    const QByteArray text = file.read(maximumSize + 1);
    if (file.error() != QFile::NoError)
        refuseUnreadable(file.errorString());
    if (text.size() > maximumSize)
        throw CalendarFileError(CalendarFileError::tr(
            "The file has more than 10 MB. Export only the calendar with the days off, and choose that file."));
    return CalendarReader(today).read(text);
}
