// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CsvRows.h"
#include "DayRecord.h"
#include "DaysCsvFormat.h"

#include <QHash>
#include <QList>

struct DaysCsvContents {
    /// In the order of their dates; each date once. What the list does not say is empty.
    QList<DayRecord> days = {};
    /// The kinds of absence that the list names. Those that are not of the program are numbered anew, in the order in
    /// which they were named.
    QList<AbsenceKind> kinds = {};
    /// What was left out and why, each in a sentence for the person.
    QStringList problems = {};
};

/// Reads a list of days: what daysCsv() writes, or any table with a column of dates and one of states. A row that is
/// not understood is left out whole.
class DaysCsvReader {
public:
    /// To be called once. Throws a FileError if the text is no list of days.
    [[nodiscard]] DaysCsvContents read(QByteArrayView text);

private:
    using Column = days_csv::Column;

    /// Returns whether the row names the columns.
    [[nodiscard]] bool readHeader(const CsvRow& row);
    void readRow(const CsvRow& row);
    [[nodiscard]] DayRecord dayIn(const CsvRow& row);
    [[nodiscard]] int kindIn(const CsvRow& row);
    [[nodiscard]] int ownKind(const QString& name, Treatment treatment);
    [[nodiscard]] std::optional<DayOff> dayOffIn(const CsvRow& row, QDate date) const;
    [[nodiscard]] std::optional<DayChange> changeIn(const CsvRow& row, const DayRecord& day) const;
    [[nodiscard]] QString cell(const CsvRow& row, Column column) const;
    [[nodiscard]] QString word(const CsvRow& row, Column column) const { return cell(row, column).trimmed(); }
    void addProblem(int line, const QString& problem);

    /// Where the columns stand; negative if they are missing.
    std::array<qsizetype, days_csv::columnNames.size()> m_places = {};
    qsizetype m_width = 0;
    DaysCsvContents m_contents;
    QHash<QDate, int> m_lines;
    int m_furtherProblems = 0;
};

/// Reads a file. Throws a FileError if it cannot be read or is no list of days.
[[nodiscard]] DaysCsvContents readDaysCsvFile(const QString& path);
