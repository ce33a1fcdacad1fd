// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

StartMode readCommandLine(const QStringList& arguments)
{
    if (arguments.size() <= 1)
        return StartMode::Shown;
    const QCommandLineOption atLogin(u"at-login"_s,
                                     QCoreApplication::translate("main", "Start without a window, as at login."));
    const QCommandLineOption checkNow(
        u"check-now"_s, QCoreApplication::translate("main", "Make the running Pellory check for office networks now."));
    QCommandLineParser parser;
    parser.setApplicationDescription(QCoreApplication::translate(
        "main", "A calendar of your days in the office that marks them by the Wi-Fi networks in range."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions({atLogin, checkNow});
    parser.process(arguments);
    if (parser.isSet(atLogin))
        return StartMode::AtLogin;
    return parser.isSet(checkNow) ? StartMode::WithCheck : StartMode::Shown;
}

bool hasOption(std::span<char* const> arguments, std::initializer_list<std::string_view> options)
{
    return std::ranges::find_first_of(arguments, options, std::equal_to<std::string_view>()) != arguments.end();
}
