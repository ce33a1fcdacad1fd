// SPDX-License-Identifier: GPL-3.0-or-later
#include "StoreLock.h"

#include <QDeadlineTimer>
#include <QLoggingCategory>

#include <cerrno>
#include <system_error>
#include <thread>

#include <sys/file.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

Q_LOGGING_CATEGORY(logLock, "pellory.store", QtInfoMsg)

void warnAboutLock(const QString& reason)
{
    qCWarning(logLock).noquote() << "The store cannot be locked:"_L1 << reason;
}

} // namespace

StoreLock::StoreLock(const QString& storePath)
    : m_file(storePath + ".lock"_L1)
{
}

bool StoreLock::acquire(std::chrono::milliseconds timeout)
{
    // In a folder where no file can be made nobody can write a store either.
    if (!m_file.open(QFile::ReadWrite, QFile::ReadOwner | QFile::WriteOwner) && !m_file.open(QFile::ReadOnly)) {
        warnAboutLock(m_file.errorString());
        return true;
    }
    const QDeadlineTimer end(timeout);
    while (flock(m_file.handle(), LOCK_EX | LOCK_NB) != 0) {
        if (errno != EWOULDBLOCK) {
            warnAboutLock(QString::fromStdString(std::generic_category().message(errno)));
            return true;
        }
        if (end.hasExpired())
            return false;
        std::this_thread::sleep_for(10ms);
    }
    return true;
}
