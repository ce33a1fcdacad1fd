// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QStringList>

#include <optional>

struct CsvRow {
    /// Of its beginning in the file, counted from 1.
    int line = 0;
    QStringList cells = {};
    /// What is wrong with it, in words for the person; empty if it is sound.
    QString problem = {};

    /// Without any text, as an empty line.
    [[nodiscard]] bool isBlank() const;
};

/// Reads CSV in UTF-8 row by row, as RFC 4180 has it. Lines may also end in LF or CR. `text` must outlive it.
class CsvRows {
public:
    /// The separator is what the first row uses, or names ("sep=;"): a comma, a semicolon or a tab.
    explicit CsvRows(QByteArrayView text);

    /// Nothing at the end. Blank rows are left out.
    [[nodiscard]] std::optional<CsvRow> next();

private:
    [[nodiscard]] CsvRow takeRow();
    [[nodiscard]] QString takeCell(CsvRow& row);
    [[nodiscard]] QString takeQuotedCell(CsvRow& row);
    [[nodiscard]] QString takePlainCell();
    [[nodiscard]] bool isAtEnd() const { return m_place >= m_text.size(); }
    [[nodiscard]] bool isAtLineEnd() const;
    void passLineEnd();

    QByteArrayView m_text;
    char m_separator = ',';
    qsizetype m_place = 0;
    int m_line = 1;
};
