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

/// Reads a pattern in which "**" switches bold on and off, then replaces %1, %2, ... by the arguments. Asterisks and
/// percent signs in an argument are plain text.
[[nodiscard]] MarkedText markedText(const QString& pattern, const QStringList& arguments);

/// The text in Markdown, bold runs between double asterisks.
[[nodiscard]] QString toMarkdown(const MarkedText& text);

/// The text without formatting.
[[nodiscard]] QString toPlainText(const MarkedText& text);
