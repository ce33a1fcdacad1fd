// SPDX-License-Identifier: GPL-3.0-or-later
#include "CalendarLines.h"

namespace {

constexpr QByteArrayView byteOrderMark("\xEF\xBB\xBF");

/// The place of a character outside of quotes, from a place on; the size if there is none.
qsizetype findUnquoted(QStringView text, QStringView characters, qsizetype from)
{
    bool isQuoted = false;
    for (qsizetype i = from; i < text.size(); ++i) {
        if (text.at(i) == u'"')
            isQuoted = !isQuoted;
        else if (!isQuoted && characters.contains(text.at(i)))
            return i;
    }
    return text.size();
}

void addParameter(CalendarLine& line, QStringView parameter)
{
    const auto equals = parameter.indexOf(u'=');
    if (equals <= 0)
        return;
    QString value = parameter.sliced(equals + 1).toString();
    line.parameters.insert(parameter.left(equals).toString().toUpper(), value.remove(u'"'));
}

CalendarLine lineFrom(const QByteArray& bytes, int number)
{
    CalendarLine line{.number = number, .isText = bytes.isValidUtf8() && !bytes.contains('\0')};
    const QString text = QString::fromUtf8(bytes);
    auto end = findUnquoted(text, u":;", 0);
    const auto nameEnd = end;
    while (end < text.size() && text.at(end) == u';') {
        const auto start = end + 1;
        end = findUnquoted(text, u":;", start);
        addParameter(line, QStringView(text).sliced(start, end - start));
    }
    if (end == text.size()) // there is no value
        return line;
    line.name = text.left(nameEnd).toUpper();
    line.value = text.sliced(end + 1);
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
