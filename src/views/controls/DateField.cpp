// SPDX-License-Identifier: GPL-3.0-or-later
#include "DateField.h"

#include <QLocale>

using namespace Qt::StringLiterals;

namespace {

constexpr int firstDateYear = 2000;
constexpr int lastDateYear = 2099;

constexpr QDate exampleDate()
{
    return QDate::fromJulianDay(2461406); // 31 December 2026: its numbers show which is the day, and which the year
}

QString fullFormat()
{
    QString format = QLocale().dateFormat(QLocale::ShortFormat);
    if (!format.contains("yyyy"_L1))
        format.replace("yy"_L1, "yyyy"_L1);
    return format;
}

// One digit where the format has two is accepted as well.
QString lenient(QString format)
{
    if (!format.contains("ddd"_L1))
        format.replace("dd"_L1, "d"_L1);
    if (!format.contains("MMM"_L1))
        format.replace("MM"_L1, "M"_L1);
    return format;
}

QDate parsed(const QString& text)
{
    const QString format = lenient(fullFormat());
    QString shortFormat = format;
    shortFormat.replace("yyyy"_L1, "yy"_L1);
    for (const QString& each : {format, shortFormat}) {
        QDate date = QLocale().toDate(text, each);
        if (each == shortFormat && date.year() < firstDateYear)
            date = QLocale().toDate(text, each).addYears(100);
        if (date.isValid())
            return date;
    }
    return QDate::fromString(text, Qt::ISODate);
}

} // namespace

DateField::DateField(const QString& name, QWidget* parent)
    : TextField(name, parent)
{
    const QMargins margins = textMargins();
    const int room = fontMetrics().horizontalAdvance(QLocale().toString(exampleDate(), fullFormat()) + "00"_L1);
    setFixedWidth(room + margins.left() + margins.right());
}

std::optional<QDate> DateField::date() const
{
    const QDate date = parsed(text().simplified());
    return date.isValid() && firstDateYear <= date.year() && date.year() <= lastDateYear ? std::optional(date)
                                                                                         : std::nullopt;
}

void DateField::setDate(QDate date)
{
    setText(QLocale().toString(date, fullFormat()));
}

QString DateField::refusal() const
{
    if (parsed(text().simplified()).isValid())
        return tr("The year must be between %1 and %2.").arg(firstDateYear).arg(lastDateYear);
    return tr("This is not a date. Type one like %1.").arg(QLocale().toString(exampleDate(), fullFormat()));
}
