// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <string_view>

using namespace Qt::StringLiterals;

Start readCommandLine(const QStringList& arguments)
{
    if (arguments.size() <= 1)
        return Start::Shown;
    const QCommandLineOption atLogin(
        u"at-login"_s,
        QCoreApplication::translate("main", "Start without a window, as at the beginning of a session."));
    const QCommandLineOption checkNow(
        u"check-now"_s, QCoreApplication::translate("main", "Have the running Pellory look for office networks now."));
    QCommandLineParser parser;
    parser.setApplicationDescription(QCoreApplication::translate(
        "main", "A calendar of days in the office that marks them by the Wi-Fi networks in range."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions({atLogin, checkNow});
    parser.process(arguments);
    if (parser.isSet(atLogin))
        return Start::AtLogin;
    return parser.isSet(checkNow) ? Start::WithCheck : Start::Shown;
}

bool isTextWanted(int argc, char* argv[])
{
    constexpr std::array<std::string_view, 5> options{"-h", "--help", "--help-all", "-v", "--version"};
    return std::any_of(argv + 1, argv + argc, [&](const char* argument) {
        return std::find(options.begin(), options.end(), argument) != options.end();
    });
}
