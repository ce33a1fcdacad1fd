// SPDX-License-Identifier: GPL-3.0-or-later
#include "CalendarLines.h"

namespace {

constexpr QByteArrayView byteOrderMark("\xEF\xBB\xBF");

/// The place of the colon before the value; negative if there is none. A parameter may have colons within quotes.
qsizetype findColon(const QString& text)
{
    bool isQuoted = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text.at(i) == u'"')
            isQuoted = !isQuoted;
        else if (text.at(i) == u':' && !isQuoted)
            return i;
    }
    return -1;
}

CalendarLine lineFrom(const QByteArray& bytes, int number)
{
    CalendarLine line{.number = number, .isText = bytes.isValidUtf8() && !bytes.contains('\0')};
    const QString text = QString::fromUtf8(bytes);
    const auto colon = findColon(text);
    if (colon < 0)
        return line;
    line.name = text.left(colon).section(u';', 0, 0).toUpper();
    line.value = text.sliced(colon + 1);
    return line;
}

} // namespace

CalendarLines::CalendarLines(const QByteArray& text)
    : m_rest(text)
{
    if (m_rest.startsWith(byteOrderMark))
        m_rest = m_rest.sliced(byteOrderMark.size());
}

std::optional<CalendarLine> CalendarLines::next()
{
    while (!m_rest.isEmpty()) {
        QByteArray text = takePart().toByteArray();
        const int number = m_number;
        while (isFolded())
            text.append(takePart().sliced(1));
        if (!text.trimmed().isEmpty())
            return lineFrom(text, number);
    }
    return {};
}

// Without its end, which may be CRLF or LF.
QByteArrayView CalendarLines::takePart()
{
    ++m_number;
    const auto end = m_rest.indexOf('\n');
    QByteArrayView part = end < 0 ? m_rest : m_rest.first(end);
    m_rest = end < 0 ? QByteArrayView() : m_rest.sliced(end + 1);
    return part.endsWith('\r') ? part.chopped(1) : part;
}

bool CalendarLines::isFolded() const
{
    return m_rest.startsWith(' ') || m_rest.startsWith('\t');
}
