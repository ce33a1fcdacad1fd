// SPDX-License-Identifier: GPL-3.0-or-later
#include "DaysCsv.h"

#include "DaysCsvFormat.h"

#include <QDate>
#include <QHash>
#include <QTime>

#include <chrono>

namespace {

/// Writes the cells of a list one after the other.
class CsvWriter {
public:
    void add(QLatin1StringView cell)
    {
        begin();
        m_text.append(cell.data(), cell.size());
    }

    void add(const QString& cell)
    {
        begin();
        if (cell.isEmpty())
            return;
        QByteArray bytes = days_csv::escaped(cell).toUtf8();
        const bool isQuoted = bytes.contains(',') || bytes.contains('"') || bytes.contains('\n') ||
                              bytes.contains('\r') || bytes.startsWith(' ') || bytes.endsWith(' ');
        m_text += isQuoted ? '"' + bytes.replace('"', "\"\"") + '"' : bytes;
    }

    // QDate::toString() would take most of the time of an export.
    void add(QDate date)
    {
        begin();
        append(date);
    }

    /// A time in milliseconds since 1970 began in UTC.
    void addTime(qint64 milliseconds)
    {
        const auto since1970 = std::chrono::milliseconds(milliseconds);
        const auto days = std::chrono::floor<std::chrono::days>(since1970);
        const auto ofDay = std::chrono::duration_cast<std::chrono::milliseconds>(since1970 - days);
        const QTime time = QTime::fromMSecsSinceStartOfDay(static_cast<int>(ofDay.count()));
        begin();
        append(QDate(1970, 1, 1).addDays(days.count()));
        append('T', time.hour(), 2);
        append(':', time.minute(), 2);
        append(':', time.second(), 2);
        append('.', time.msec(), 3);
        m_text += 'Z';
    }

    void endLine()
    {
        m_text += "\r\n";
        m_isLineEmpty = true;
    }

    [[nodiscard]] QByteArray text() const { return m_text; }

private:
    void begin()
    {
        if (!m_isLineEmpty)
            m_text += ',';
        m_isLineEmpty = false;
    }

    void append(QDate date)
    {
        append(date.year(), 4);
        append('-', date.month(), 2);
        append('-', date.day(), 2);
    }

    void append(char separator, int number, int digits)
    {
        m_text += separator;
        append(number, digits);
    }

    void append(int number, int digits)
    {
        const auto start = m_text.size();
        m_text.resize(start + digits);
        for (auto place = m_text.size() - 1; place >= start; --place, number /= 10)
            m_text[place] = static_cast<char>('0' + number % 10);
    }

    QByteArray m_text;
    bool m_isLineEmpty = true;
};

void addKind(CsvWriter& writer, const AbsenceKind& kind)
{
    writer.add(days_csv::nameOfKind(kind.id));
    writer.add(kind.name);
    writer.add(kind.id == AbsenceKind::none ? QLatin1StringView() : days_csv::nameOf(kind.treatment));
}

void addDayOff(CsvWriter& writer, const std::optional<DayOff>& dayOff)
{
    writer.add(dayOff ? dayOff->name : QString());
    writer.add(dayOff ? days_csv::nameOf(dayOff->source) : QLatin1StringView());
}

void addChange(CsvWriter& writer, const std::optional<DayChange>& change)
{
    writer.add(change ? days_csv::nameOf(change->by) : QLatin1StringView());
    if (change)
        writer.addTime(change->time);
    else
        writer.add(QLatin1StringView());
    writer.add(change ? change->network : QString());
}

} // namespace

QByteArray daysCsv(const QList<DayRecord>& days, const QList<AbsenceKind>& kinds)
{
    QHash<int, AbsenceKind> kindsById;
    for (const AbsenceKind& kind : kinds)
        kindsById.insert(kind.id, kind);
    CsvWriter writer;
    for (const QLatin1StringView name : days_csv::columnNames)
        writer.add(name);
    writer.endLine();
    for (const DayRecord& day : days) {
        writer.add(day.date);
        writer.add(rawValue(day.state));
        addKind(writer, kindsById.value(day.absenceKind));
        writer.add(day.note);
        addDayOff(writer, day.dayOff);
        addChange(writer, day.lastChange);
        writer.endLine();
    }
    return writer.text();
}
