// SPDX-License-Identifier: GPL-3.0-or-later
#include "ElidedLines.h"

#include <QFontMetrics>
#include <QTextLayout>

namespace {

// More fits into no label.
constexpr qsizetype longestText = 1000;

QStringList wrapped(const QString& paragraph, const QFont& font, int width)
{
    QStringList lines;
    QTextLayout layout(paragraph, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        lines.append(paragraph.mid(line.textStart(), line.textLength()).trimmed());
    }
    layout.endLayout();
    return lines;
}

} // namespace

QStringList elidedLines(const QString& text, const QFont& font, int width, qsizetype count)
{
    // A layout takes much longer.
    const QString words = text.trimmed();
    if (words.size() <= longestText && !words.contains(u'\n') && QFontMetrics(font).horizontalAdvance(words) <= width)
        return words.isEmpty() ? QStringList() : QStringList(words);
    QStringList lines;
    for (const QString& paragraph : text.left(longestText).split(u'\n'))
        lines += wrapped(paragraph.trimmed(), font, width);
    lines.removeAll(QString());
    if (lines.size() > count) {
        lines.resize(count);
        lines.last() = QFontMetrics(font).elidedText(lines.last() + u'…', Qt::ElideRight, width);
    }
    return lines;
}
