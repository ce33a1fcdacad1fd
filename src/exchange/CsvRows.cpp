// SPDX-License-Identifier: GPL-3.0-or-later
#include "CsvRows.h"

#include "FileError.h"

#include <algorithm>

namespace {

constexpr qsizetype mostCells = 100;

bool isSeparator(char character)
{
    return character == ',' || character == ';' || character == '\t';
}

char separatorOf(QByteArrayView text)
{
    bool isQuoted = false;
    for (const char character : text) {
        if (character == '"')
            isQuoted = !isQuoted;
        else if (!isQuoted && isSeparator(character))
            return character;
        else if (!isQuoted && (character == '\n' || character == '\r'))
            break;
    }
    return ',';
}

void refuseRow(CsvRow& row, const QString& problem)
{
    if (row.problem.isEmpty())
        row.problem = problem;
}

} // namespace

bool CsvRow::isBlank() const
{
    return problem.isEmpty() &&
           std::ranges::all_of(cells, [](const QString& cell) { return cell.trimmed().isEmpty(); });
}

CsvRows::CsvRows(QByteArrayView text)
    : m_text(text)
    , m_separator(separatorOf(text))
{
    if (text.size() > 4 && text.first(4).compare("sep=", Qt::CaseInsensitive) == 0 && isSeparator(text.at(4))) {
        m_separator = text.at(4);
        m_place = 5;
        passLineEnd();
    }
}

std::optional<CsvRow> CsvRows::next()
{
    while (!isAtEnd()) {
        CsvRow row = takeRow();
        if (!row.isBlank())
            return row;
    }
    return {};
}

CsvRow CsvRows::takeRow()
{
    CsvRow row{.line = m_line};
    while (true) {
        const QString cell = takeCell(row);
        if (row.cells.size() < mostCells)
            row.cells.append(cell);
        else
            refuseRow(row, FileError::tr("it has too many cells"));
        if (isAtLineEnd())
            break;
        ++m_place; // the separator
    }
    passLineEnd();
    return row;
}

QString CsvRows::takeCell(CsvRow& row)
{
    if (isAtEnd() || m_text.at(m_place) != '"') {
        QString cell = takePlainCell();
        if (cell.contains(u'"'))
            refuseRow(row, FileError::tr("there is a quotation mark within a cell that does not begin with one"));
        return cell;
    }
    ++m_place;
    QString cell = takeQuotedCell(row);
    if (!takePlainCell().isEmpty())
        refuseRow(row, FileError::tr("there is text after a closing quotation mark"));
    return cell;
}

// Leaves the place after the closing quotation mark.
QString CsvRows::takeQuotedCell(CsvRow& row)
{
    QByteArray cell;
    while (true) {
        const auto end = m_text.indexOf('"', m_place);
        const QByteArrayView part = m_text.sliced(m_place, (end < 0 ? m_text.size() : end) - m_place);
        cell.append(part);
        m_line += static_cast<int>(part.count('\n'));
        m_place = end < 0 ? m_text.size() : end + 1;
        if (end < 0)
            refuseRow(row, FileError::tr("a quotation mark is never closed, so the rest of the file is left out"));
        if (isAtEnd() || m_text.at(m_place) != '"')
            return QString::fromUtf8(cell);
        cell.append('"');
        ++m_place;
    }
}

QString CsvRows::takePlainCell()
{
    const auto begin = m_place;
    while (!isAtLineEnd() && m_text.at(m_place) != m_separator)
        ++m_place;
    return QString::fromUtf8(m_text.sliced(begin, m_place - begin));
}

bool CsvRows::isAtLineEnd() const
{
    return isAtEnd() || m_text.at(m_place) == '\n' || m_text.at(m_place) == '\r';
}

void CsvRows::passLineEnd()
{
    if (!isAtEnd() && m_text.at(m_place) == '\r' && m_text.sliced(m_place).startsWith("\r\n"))
        ++m_place;
    ++m_place;
    ++m_line;
}
