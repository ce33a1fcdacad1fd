// SPDX-License-Identifier: GPL-3.0-or-later
#include "StoreVersion.h"

#include "Schema.h"

#include <QFile>
#include <QtEndian>

bool isOfEarlierVersion(const QString& storeFile)
{
    // The format of the database's files has `user_version` here.
    constexpr qint64 place = 60;
    QFile file(storeFile);
    if (!file.open(QFile::ReadOnly) || !file.seek(place))
        return false;
    const QByteArray bytes = file.read(sizeof(qint32));
    return bytes.size() == sizeof(qint32) && qFromBigEndian<qint32>(bytes.constData()) < pellorySchema().version();
}
