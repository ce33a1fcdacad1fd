// SPDX-License-Identifier: GPL-3.0-or-later
#include "NetworkName.h"

namespace {

constexpr char16_t controlPictures = u'\u2400';
constexpr char16_t firstPrintable = u' ';
constexpr char16_t visibleBlank = u'\u2423';
constexpr char16_t unknownSign = u'\ufffd';
constexpr char16_t isolate = u'\u2068';
constexpr char16_t endOfIsolate = u'\u2069';

bool isSeen(QChar character)
{
    switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_NotAssigned:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return false;
    default:
        return true;
    }
}

QChar shown(QChar character)
{
    if (isSeen(character))
        return character;
    return character.unicode() < firstPrintable ? QChar(controlPictures + character.unicode()) : QChar(unknownSign);
}

} // namespace

QString shownNetworkName(const QString& ssid)
{
    QString name;
    for (qsizetype i = 0; i < ssid.size(); ++i) {
        const bool isAtAnEnd = i == 0 || i == ssid.size() - 1;
        name += isAtAnEnd && ssid.at(i).isSpace() ? QChar(visibleBlank) : shown(ssid.at(i));
    }
    return QChar(isolate) + name + QChar(endOfIsolate);
}
