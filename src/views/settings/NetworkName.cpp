// SPDX-License-Identifier: GPL-3.0-or-later
#include "NetworkName.h"

namespace {

constexpr char16_t visibleBlank = u'\u2423';
constexpr char16_t invisibleSign = u'\ufffd';
constexpr char16_t isolate = u'\u2068';
constexpr char16_t endOfIsolate = u'\u2069';

bool isVisible(QChar character)
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

} // namespace

QString displayName(const QString& ssid)
{
    QString name;
    for (qsizetype i = 0; i < ssid.size(); ++i) {
        const bool isAtAnEnd = i == 0 || i == ssid.size() - 1;
        if (isAtAnEnd && ssid.at(i).isSpace())
            name += QChar(visibleBlank);
        else
            name += isVisible(ssid.at(i)) ? ssid.at(i) : QChar(invisibleSign);
    }
    return QChar(isolate) + name + QChar(endOfIsolate);
}
