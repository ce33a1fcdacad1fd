// SPDX-License-Identifier: GPL-3.0-or-later
#include "StatusText.h"

#include <QDate>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace {

QString joined(const QVariantMap& map, const QString& first, const QString& second)
{
    QStringList texts{map.value(first).toString(), map.value(second).toString()};
    texts.removeAll({});
    return texts.join(". "_L1);
}

} // namespace

QString statusText(const QVariantMap& status)
{
    const QDate date = QDate::fromString(status.value(u"date"_s).toString(), Qt::ISODate);
    QStringList lines{u"%1: %2"_s.arg(QLocale().toString(date), status.value(u"text"_s).toString())};
    for (const QString& period : {u"month"_s, u"quarter"_s})
        lines.append(joined(status.value(period).toMap(), u"text"_s, u"goalText"_s));
    const QVariantList rules = status.value(u"rules"_s).toList();
    for (const QVariant& entry : rules) {
        const QVariantMap rule = entry.toMap();
        lines.append(u"%1: %2"_s.arg(rule.value(u"name"_s).toString(), joined(rule, u"text"_s, u"outlookText"_s)));
    }
    return lines.join(u'\n');
}

QByteArray statusJson(const QVariantMap& status)
{
    return QJsonDocument(QJsonObject::fromVariantMap(status)).toJson(QJsonDocument::Compact);
}
