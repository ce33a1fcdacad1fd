// SPDX-License-Identifier: GPL-3.0-or-later
#include "JournalLog.h"

#ifdef PELLORY_HAS_JOURNAL

#include <QByteArray>
#include <QString>

#define SD_JOURNAL_SUPPRESS_LOCATION
#include <sys/stat.h>
#include <systemd/sd-journal.h>
#include <unistd.h>

namespace {

// The journal names its stream by device and inode, because standard error may have been redirected since.
bool isStandardErrorJournal()
{
    struct stat file {};
    return fstat(STDERR_FILENO, &file) == 0 &&
           qgetenv("JOURNAL_STREAM") ==
               QByteArray::number(quint64(file.st_dev)) + ':' + QByteArray::number(quint64(file.st_ino));
}

int priorityOf(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return LOG_DEBUG;
    case QtInfoMsg:
        return LOG_INFO;
    case QtWarningMsg:
        return LOG_WARNING;
    case QtCriticalMsg:
        return LOG_ERR;
    case QtFatalMsg:
        return LOG_CRIT;
    }
    return LOG_NOTICE;
}

void sendToJournal(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    sd_journal_send("MESSAGE=%s", text.toUtf8().constData(), "PRIORITY=%i", priorityOf(type), "QT_CATEGORY=%s",
                    context.category, "SYSLOG_IDENTIFIER=pellory", nullptr);
}

} // namespace

void logToJournalIfPresent()
{
    if (isStandardErrorJournal())
        qInstallMessageHandler(sendToJournal);
}

#else

void logToJournalIfPresent() {}

#endif
