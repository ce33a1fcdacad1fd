// SPDX-License-Identifier: GPL-3.0-or-later
#include "AccessLetters.h"

namespace {

// The place of a letter that no other entry has.
qsizetype accessLetter(const QString& text, const QString& taken)
{
    for (const bool inWords : {false, true}) {
        for (qsizetype i = 0; i < text.size(); ++i) {
            const bool isAtStart = i == 0 || text.at(i - 1).isSpace();
            if (text.at(i).isLetter() && (isAtStart || inWords) && !taken.contains(text.at(i), Qt::CaseInsensitive))
                return i;
        }
    }
    return -1;
}

} // namespace

QString AccessLetters::mark(QString text)
{
    text.replace(u'&', QStringLiteral("&&")); // a name may contain one
    if (const qsizetype letter = accessLetter(text, m_taken); letter >= 0) {
        m_taken.append(text.at(letter));
        text.insert(letter, u'&');
    }
    return text;
}
