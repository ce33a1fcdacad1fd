// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

/// A piece of text of one weight.
struct TextRun {
    QString text;
    bool bold = false;

    bool operator==(const TextRun&) const = default;
};

/// A line of text in which some words are bold.
using MarkedText = QList<TextRun>;

/// Reads a pattern in which "**" switches bold on and off, then puts the arguments in the places of %1, %2, ...
/// An argument is taken as it is: asterisks or percent signs in it mean nothing.
[[nodiscard]] MarkedText markedText(const QString& pattern, const QStringList& arguments);

/// The text in Markdown, bold runs between double asterisks.
[[nodiscard]] QString toMarkdown(const MarkedText& text);

/// The words alone.
[[nodiscard]] QString toPlainText(const MarkedText& text);
