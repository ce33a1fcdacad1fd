// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Marks in the texts of a menu the letters that choose its entries, each a different one.
class AccessLetters {
public:
    /// At the start of a word if possible. If all letters of the text are taken, none is marked.
    [[nodiscard]] QString mark(QString text);

private:
    QString m_taken;
};
