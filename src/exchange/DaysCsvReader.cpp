// SPDX-License-Identifier: GPL-3.0-or-later
#include "DaysCsvReader.h"

#include "FileBytes.h"
#include "FileError.h"

#include <QDateTime>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 largestList = 50'000'000;
constexpr qsizetype mostDays = 100'000;
constexpr qsizetype mostKinds = 100;
constexpr qsizetype mostProblems = 100;
constexpr int mostBadLines = 10'000;
constexpr qsizetype longestQuotation = 40;

/// Why a row is left out.
struct RowProblem {
    QString text;
};

FileError notAList()
{
    return FileError(FileError::tr("This is not a list of days. Its first line must name the columns, among them "
                                   "\"date\" and \"state\", or be a day such as 2026-11-20,IN_OFFICE."));
}

void refuseOtherEncodings(QByteArrayView text)
{
    if (text.startsWith("\xFF\xFE") || text.startsWith("\xFE\xFF") || !text.isValidUtf8())
        throw FileError(FileError::tr("The file is not in UTF-8. Save it as CSV with the encoding UTF-8 in the program "
                                      "that it comes from."));
    if (text.contains('\0'))
        throw FileError(FileError::tr("This is not a text file. Choose a CSV file."));
}

QDate isoDate(const QString& text)
{
    const bool isDate = text.size() == 10 && std::ranges::all_of(text, [](QChar character) {
                            return character == u'-' || (character >= u'0' && character <= u'9');
                        });
    return isDate ? QDate::fromString(text, Qt::ISODate) : QDate();
}

[[noreturn]] void refuseWord(const QString& problem, const QString& word)
{
    const bool isLong = word.size() > longestQuotation;
    throw RowProblem{problem.arg(isLong ? word.left(longestQuotation) + u'…' : word)};
}

} // namespace

DaysCsvContents DaysCsvReader::read(QByteArrayView text)
{
    refuseOtherEncodings(text);
    if (text.startsWith("\xEF\xBB\xBF"))
        text = text.sliced(3);
    CsvRows rows(text);
    auto row = rows.next();
    if (!row)
        throw notAList();
    if (readHeader(*row))
        row = rows.next();
    for (; row; row = rows.next())
        readRow(*row);
    std::ranges::sort(m_contents.days, {}, &DayRecord::date);
    if (m_furtherProblems > 0)
        m_contents.problems.append(FileError::tr("%n more problems are not listed.", nullptr, m_furtherProblems));
    return std::move(m_contents);
}

bool DaysCsvReader::readHeader(const CsvRow& row)
{
    m_width = row.cells.size();
    for (std::size_t i = 0; i < m_places.size(); ++i) {
        const auto isNamed = [&](const QString& name) {
            return name.trimmed().compare(days_csv::columnNames.at(i), Qt::CaseInsensitive) == 0;
        };
        const auto found = std::ranges::find_if(row.cells, isNamed);
        m_places.at(i) = found == row.cells.end() ? -1 : found - row.cells.begin();
    }
    auto& date = m_places.at(static_cast<std::size_t>(Column::Date));
    auto& state = m_places.at(static_cast<std::size_t>(Column::State));
    const bool isDay = isoDate(row.cells.first().trimmed()).isValid();
    if (m_width == 2 && (date < 0 || state < 0)) { // of which it is plain which is which
        date = 0;
        state = 1;
    }
    if (date < 0 || state < 0)
        throw notAList();
    return !isDay;
}

void DaysCsvReader::readRow(const CsvRow& row)
{
    try {
        if (!row.problem.isEmpty())
            throw RowProblem{row.problem};
        if (row.cells.size() != m_width)
            throw RowProblem{FileError::tr("its number of cells is %1, and that of the first line %2")
                                 .arg(QString::number(row.cells.size()), QString::number(m_width))};
        const DayRecord day = dayIn(row);
        if (const int line = m_lines.value(day.date); line != 0)
            throw RowProblem{FileError::tr("its date is in line %1 already").arg(line)};
        if (m_lines.size() >= mostDays)
            throw FileError(FileError::tr("The list has more than %L1 days. Split it, and import one part after the "
                                          "other.")
                                .arg(mostDays));
        m_lines.insert(day.date, row.line);
        m_contents.days.append(day);
    } catch (const RowProblem& problem) {
        addProblem(row.line, problem.text);
    }
}

DayRecord DaysCsvReader::dayIn(const CsvRow& row)
{
    const QString date = word(row, Column::Date);
    DayRecord day{.date = isoDate(date)};
    if (!day.date.isValid())
        refuseWord(FileError::tr("\"%1\" is not a date such as 2026-11-20"), date);
    const QString state = word(row, Column::State);
    const auto known = state.isEmpty() ? DayState::UNKNOWN : dayStateFromText(state);
    if (!known)
        refuseWord(FileError::tr("\"%1\" is not a state of a day"), state);
    day.state = *known;
    day.note = days_csv::unescaped(cell(row, Column::Note));
    day.dayOff = dayOffIn(row, day.date);
    if (!word(row, Column::Absence).isEmpty() && day.state != DayState::OUT_OF_OFFICE)
        throw RowProblem{FileError::tr("only a day out of office has a kind of absence")};
    day.absenceKind = kindIn(row);
    day.lastChange = changeIn(row, day);
    return day;
}

int DaysCsvReader::kindIn(const CsvRow& row)
{
    const QString name = days_csv::unescaped(word(row, Column::Absence));
    if (name.isEmpty())
        return AbsenceKind::none;
    if (const auto kind = days_csv::kindNamed(name))
        return *kind;
    const QString treatment = word(row, Column::CountsAs);
    const auto known = treatment.isEmpty() ? Treatment::OutOfOffice : days_csv::treatmentNamed(treatment);
    if (!known)
        refuseWord(FileError::tr("\"%1\" is not a way to count"), treatment);
    const bool isOwn = name.compare(days_csv::ownKind, Qt::CaseInsensitive) == 0;
    const QString ownName = days_csv::unescaped(cell(row, Column::AbsenceName)).simplified();
    if (isOwn && !ownName.isEmpty())
        return ownKind(ownName, *known);
    for (int kind = AbsenceKind::sick; kind <= AbsenceKind::training; ++kind) {
        if (name.compare(description(AbsenceKind{.id = kind}), Qt::CaseInsensitive) == 0)
            return kind;
    }
    return ownKind(name.simplified(), *known);
}

int DaysCsvReader::ownKind(const QString& name, Treatment treatment)
{
    auto& kinds = m_contents.kinds;
    const auto found = std::ranges::find_if(
        kinds, [&name](const AbsenceKind& kind) { return kind.name.compare(name, Qt::CaseInsensitive) == 0; });
    if (found != kinds.end())
        return found->id;
    if (kinds.size() >= mostKinds)
        throw RowProblem{FileError::tr("the list names more than %1 kinds of absence").arg(mostKinds)};
    kinds.append({AbsenceKind::firstOwn + static_cast<int>(kinds.size()), name, treatment});
    return kinds.last().id;
}

std::optional<DayOff> DaysCsvReader::dayOffIn(const CsvRow& row, QDate date) const
{
    const QString name = days_csv::unescaped(cell(row, Column::DayOff));
    const QString source = word(row, Column::DayOffSource);
    if (name.isEmpty() && source.isEmpty())
        return {};
    const auto known = source.isEmpty() ? DayOffSource::File : days_csv::sourceNamed(source);
    if (!known)
        refuseWord(FileError::tr("\"%1\" is not a source of days off"), source);
    return DayOff{date, name, *known};
}

std::optional<DayChange> DaysCsvReader::changeIn(const CsvRow& row, const DayRecord& day) const
{
    const QString author = word(row, Column::ChangedBy);
    const QString text = word(row, Column::ChangedAt);
    if (author.isEmpty() && text.isEmpty())
        return {};
    const auto by = days_csv::authorNamed(author);
    if (!by)
        refuseWord(FileError::tr("\"%1\" is nobody who changes days"), author);
    const QDateTime time = QDateTime::fromString(text, Qt::ISODateWithMs);
    if (!time.isValid() || time.timeSpec() == Qt::LocalTime || time.toMSecsSinceEpoch() < 0)
        refuseWord(FileError::tr("\"%1\" is not a time such as 2026-11-20T08:15:00.000Z"), text);
    return DayChange{.time = time.toMSecsSinceEpoch(),
                     .date = day.date,
                     .after = day.state,
                     .by = *by,
                     .network = days_csv::unescaped(cell(row, Column::Network)),
                     .absenceAfter = day.absenceKind};
}

QString DaysCsvReader::cell(const CsvRow& row, Column column) const
{
    const auto place = m_places.at(static_cast<std::size_t>(column));
    return place < 0 ? QString() : row.cells.at(place);
}

void DaysCsvReader::addProblem(int line, const QString& problem)
{
    if (m_contents.problems.size() < mostProblems)
        //: The problem is half a sentence.
        m_contents.problems.append(FileError::tr("Line %1 is left out: %2.").arg(QString::number(line), problem));
    else if (++m_furtherProblems > mostBadLines)
        throw FileError(FileError::tr("More than %L1 lines cannot be read. Choose a list of days.").arg(mostBadLines));
}

DaysCsvContents readDaysCsvFile(const QString& path)
{
    const QByteArray text = readFile(path, largestList);
    if (text.size() > largestList)
        throw FileError(FileError::tr("The file has more than 50 MB. Choose a list of days."));
    return DaysCsvReader().read(text);
}
