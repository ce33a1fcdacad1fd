// SPDX-License-Identifier: GPL-3.0-or-later
#include "MarkedText.h"

using namespace Qt::StringLiterals;

namespace {

QString filled(QStringView pattern, const QStringList& arguments)
{
    QString text;
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        const int place = pattern[i] == u'%' && i + 1 < pattern.size() ? pattern[i + 1].digitValue() : -1;
        if (place >= 1 && place <= arguments.size()) {
            text += arguments.at(place - 1);
            ++i;
        } else {
            text += pattern[i];
        }
    }
    return text;
}

} // namespace

MarkedText markedText(const QString& pattern, const QStringList& arguments)
{
    MarkedText text;
    bool bold = false;
    for (const QStringView part : QStringView(pattern).split(u"**")) {
        if (!part.isEmpty())
            text.append({filled(part, arguments), bold});
        bold = !bold;
    }
    return text;
}

QString toMarkdown(const MarkedText& text)
{
    QString markdown;
    for (const TextRun& run : text)
        markdown += run.bold ? "**"_L1 + run.text + "**"_L1 : run.text;
    return markdown;
}

QString toPlainText(const MarkedText& text)
{
    QString plain;
    for (const TextRun& run : text)
        plain += run.text;
    return plain;
}
