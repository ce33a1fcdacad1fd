// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecordCsv.h"

#include "Month.h"
#include "RecordTexts.h"

#include <QCoreApplication>
#include <QIODevice>
#include <QLocale>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct RecordCsv {
    Q_DECLARE_TR_FUNCTIONS(RecordCsv)
};

QString csvField(QString text, QChar separator)
{
    constexpr QStringView formulaStarts = u"=+-@\t\r\n";
    if (!text.isEmpty() && formulaStarts.contains(text.front()))
        text.prepend(u'\'');
    const auto isSpecial = [separator](QChar c) { return c == separator || c == u'"' || c == u'\r' || c == u'\n'; };
    if (std::none_of(text.cbegin(), text.cend(), isSpecial))
        return text;
    return u'"' + text.replace(u'"', u"\"\""_s) + u'"';
}

QByteArray csvLine(const QStringList& texts, QChar separator)
{
    QStringList fields;
    for (const QString& text : texts)
        fields.append(csvField(text, separator));
    return (fields.join(separator) + u"\r\n"_s).toUtf8();
}

QStringList csvHeadings(const RecordForm& form)
{
    QStringList texts{RecordCsv::tr("Date"),         RecordCsv::tr("Weekday"), RecordCsv::tr("State"),
                      RecordCsv::tr("Kind"),         RecordCsv::tr("Day Off"), RecordCsv::tr("Workday"),
                      RecordCsv::tr("In the Office")};
    if (form.hasNotes)
        texts += RecordCsv::tr("Note");
    if (form.hasChanges)
        texts += {RecordCsv::tr("Set By"), RecordCsv::tr("Set At")};
    return texts;
}

QStringList csvFields(const RecordContents& contents, const RecordForm& form, QDate date, const Day& day)
{
    DayRecord record = contents.recordOn(date);
    record.state = day.state;
    const CountedDay counted = contents.counting.count(date, day.state, contents.vacationDaysCountAsInOffice);
    // The trackers go by what is stored as long as nothing is chosen.
    const bool isWorkday = contents.counting.isUsed() ? counted.isWorkday : day.isWorkday;
    QStringList texts{date.toString(Qt::ISODate),
                      QLocale().standaloneDayName(date.dayOfWeek()),
                      description(day.state),
                      record_texts::kind(record, contents.kinds),
                      record_texts::dayOff(record),
                      isWorkday ? u"1"_s : u"0"_s,
                      counted.isInOffice ? u"1"_s : u"0"_s};
    if (form.hasNotes)
        texts += record.note;
    if (form.hasChanges)
        texts += {record_texts::setBy(record), record_texts::setAt(record).toString(u"yyyy-MM-dd HH:mm:ss"_s)};
    return texts;
}

} // namespace

bool writeRecordCsv(const RecordContents& contents, const RecordForm& form, QIODevice& device,
                    const RecordProgress& progress)
{
    constexpr int whole = 100;
    const QChar separator = QLocale().decimalPoint() == u","_s ? u';' : u',';
    device.write("\xEF\xBB\xBF");
    device.write(csvLine(csvHeadings(form), separator));
    for (qsizetype i = 0; i < contents.months.size(); ++i) {
        const Month& month = *contents.months.at(i);
        for (const Day& day : month.days.value()) {
            if (day.isInMonth())
                device.write(csvLine(csvFields(contents, form, month.dateOf(day.id), day), separator));
        }
        if (!progress(static_cast<int>(whole * (i + 1) / contents.months.size())))
            return false;
    }
    return true;
}
