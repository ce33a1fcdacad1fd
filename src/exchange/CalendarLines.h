// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// A line of an iCalendar file, such as `DTSTART;VALUE=DATE:20260101`.
struct CalendarLine {
    /// Of its first part in the file, counted from 1.
    int number = 0;
    /// In upper case, without its parameters.
    QString name = {};
    QString value = {};
    /// Whether it is valid UTF-8 without null bytes.
    bool isText = true;

    /// The value in upper case.
    [[nodiscard]] QString keyword() const { return value.trimmed().toUpper(); }
};

/// Reads an iCalendar file line by line, and joins lines that were folded, also in the middle of a character.
class CalendarLines {
public:
    explicit CalendarLines(const QByteArray& text);

    /// Nothing at the end. Empty lines are left out, and what is no line of a calendar has no name.
    [[nodiscard]] std::optional<CalendarLine> next();

private:
    [[nodiscard]] QByteArrayView takePart();
    [[nodiscard]] bool isFolded() const;

    QByteArrayView m_rest;
    int m_number = 0;
};
