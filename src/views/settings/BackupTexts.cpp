// SPDX-License-Identifier: GPL-3.0-or-later
#include "BackupTexts.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QLocale>

namespace {

struct BackupTexts {
    Q_DECLARE_TR_FUNCTIONS(BackupTexts)
};

} // namespace

QString backup_texts::time(const QDateTime& made)
{
    //: A date, in the format of QLocale::toString(). Put words in single quotes: 'the' d.
    const QString date = QLocale().toString(made.date(), BackupTexts::tr("d MMMM yyyy"));
    return BackupTexts::tr("%1, %2", "date, time of day")
        .arg(date, QLocale().toString(made.time(), QLocale::ShortFormat));
}

QString backup_texts::days(qsizetype count)
{
    return count == 1 ? BackupTexts::tr("1 day") : BackupTexts::tr("%n days", nullptr, static_cast<int>(count));
}

QString backup_texts::markedDays(qsizetype count)
{
    return count == 1 ? BackupTexts::tr("1 marked day")
                      : BackupTexts::tr("%n marked days", nullptr, static_cast<int>(count));
}

QString backup_texts::months(qsizetype count)
{
    return count == 1 ? BackupTexts::tr("1 month") : BackupTexts::tr("%n months", nullptr, static_cast<int>(count));
}

QString backup_texts::difference(qsizetype days)
{
    if (days == 0)
        return BackupTexts::tr("same as now");
    return days == 1 ? BackupTexts::tr("1 day differs")
                     : BackupTexts::tr("%n days differ", nullptr, static_cast<int>(days));
}

QString backup_texts::restored(qsizetype days)
{
    if (days == 0)
        return BackupTexts::tr("Every day was as it should be. Nothing has changed.");
    return days == 1 ? BackupTexts::tr("1 day was restored. Ctrl+Z in the main window takes it back.")
                     : BackupTexts::tr("%n days were restored. Ctrl+Z in the main window takes them back.", nullptr,
                                       static_cast<int>(days));
}
