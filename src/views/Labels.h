// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Fonts.h"

#include <QLabel>
#include <QTextDocument>

/// Texts of the windows. All of them wrap, and none of them reads markup.
namespace labels {

[[nodiscard]] inline QLabel* text(const QString& words)
{
    auto* label = new QLabel(words);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setFont(fonts::body(label->font()));
    return label;
}

[[nodiscard]] inline QLabel* dim(const QString& words)
{
    QLabel* label = text(words);
    label->setForegroundRole(QPalette::PlaceholderText);
    return label;
}

[[nodiscard]] inline QLabel* strong(const QString& words)
{
    QLabel* label = text(words);
    label->setFont(fonts::scaled(label->font(), 1.0, QFont::Bold));
    return label;
}

[[nodiscard]] inline QLabel* error(const QString& words)
{
    QLabel* label = text(words);
    label->setForegroundRole(QPalette::BrightText);
    return label;
}

[[nodiscard]] inline QLabel* heading(const QString& words)
{
    QLabel* label = text(words);
    label->setFont(fonts::scaled(QFont(), 1.25, QFont::Bold));
    return label;
}

/// A help text that is shown as it is, whatever a name in it looks like.
[[nodiscard]] inline QString help(const QString& words)
{
    return Qt::mightBeRichText(words) ? words.toHtmlEscaped() : words;
}

} // namespace labels
