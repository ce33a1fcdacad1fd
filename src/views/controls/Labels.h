// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Accessibility.h"
#include "Fonts.h"

#include <QLabel>
#include <QTextDocument>

/// Labels in the styles of the windows. They wrap, and show markup as it is.
namespace labels {

[[nodiscard]] inline QLabel* text(const QString& words, QPalette::ColorRole role = QPalette::WindowText)
{
    auto* label = new QLabel(words);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setFont(fonts::body(label->font()));
    label->setForegroundRole(role);
    return label;
}

[[nodiscard]] inline QLabel* dim(const QString& words)
{
    return text(words, QPalette::PlaceholderText);
}

/// Makes a screen reader say the label when it appears.
inline QLabel* announced(QLabel* label)
{
    announceWhenShown(*label, [label] { return label->text(); });
    return label;
}

[[nodiscard]] inline QLabel* error(const QString& words)
{
    return announced(text(words, QPalette::BrightText));
}

[[nodiscard]] inline QLabel* strong(const QString& words)
{
    QLabel* label = text(words);
    label->setFont(fonts::scaled(label->font(), 1.0, QFont::Bold));
    return label;
}

[[nodiscard]] inline QLabel* heading(const QString& words)
{
    QLabel* label = text(words);
    label->setFont(fonts::scaled(QFont(), 1.25, QFont::Bold));
    return label;
}

/// Turns off wrapping.
[[nodiscard]] inline QLabel* singleLine(QLabel* label)
{
    label->setWordWrap(false);
    return label;
}

/// A tooltip text that is never taken for markup, whatever names it contains.
[[nodiscard]] inline QString help(const QString& words)
{
    return Qt::mightBeRichText(words) ? words.toHtmlEscaped() : words;
}

} // namespace labels
