// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>

#include <algorithm>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

using Kind = CommandRequest::Kind;

/// All options of the program, in the order of its help.
class Options {
public:
    Options()
    {
        m_parser.setApplicationDescription(QCoreApplication::translate(
            "main", "A calendar of your days in the office that marks them by the Wi-Fi networks in range."));
        m_parser.addHelpOption();
        m_parser.addVersionOption();
        for (const QCommandLineOption& option : {atLogin, checkNow, status, json, mark, undo, exportTo, backup, search})
            m_parser.addOption(option);
    }

    [[nodiscard]] QCommandLineParser& parser() { return m_parser; }
    [[nodiscard]] QList<Kind> commands() const;
    /// Nothing if one of them is not "DATE=STATE".
    [[nodiscard]] std::optional<WrittenMarks> marks() const;

    const QCommandLineOption atLogin{u"at-login"_s,
                                     QCoreApplication::translate("main", "Start without a window, as at login.")};
    const QCommandLineOption checkNow{
        u"check-now"_s, QCoreApplication::translate("main", "Make the running Pellory check for office networks now.")};
    const QCommandLineOption status{
        u"status"_s, QCoreApplication::translate("main", "Print today's state and the figures of month and quarter.")};
    const QCommandLineOption json{u"json"_s, QCoreApplication::translate("main", "Print the status as JSON.")};
    const QCommandLineOption mark{
        u"mark"_s, QCoreApplication::translate("main", "Mark a day, such as 2026-11-20=IN_OFFICE. Can be repeated."),
        u"DATE=STATE"_s};
    const QCommandLineOption undo{u"undo"_s, QCoreApplication::translate("main", "Take back the last change.")};
    const QCommandLineOption exportTo{
        u"export"_s, QCoreApplication::translate("main", "Write all days to a file as CSV; - is standard output."),
        u"FILE"_s};
    const QCommandLineOption backup{u"backup"_s,
                                    QCoreApplication::translate("main", "Make a backup and print its name.")};
    const QCommandLineOption search = searchOption();

private:
    // Only the session bus uses it.
    [[nodiscard]] static QCommandLineOption searchOption()
    {
        QCommandLineOption option(u"search-provider"_s);
        option.setFlags(QCommandLineOption::HiddenFromHelp);
        return option;
    }

    QCommandLineParser m_parser;
};

QList<Kind> Options::commands() const
{
    QList<Kind> kinds;
    for (const auto& [option, kind] : {std::pair(&status, Kind::Status), std::pair(&mark, Kind::Mark),
                                       std::pair(&undo, Kind::Undo), std::pair(&exportTo, Kind::Export),
                                       std::pair(&backup, Kind::Backup), std::pair(&search, Kind::SearchProvider)}) {
        if (m_parser.isSet(*option))
            kinds.append(kind);
    }
    return kinds;
}

std::optional<WrittenMarks> Options::marks() const
{
    WrittenMarks marks;
    for (const QString& text : m_parser.values(mark)) {
        const qsizetype sign = text.indexOf(u'=');
        if (sign < 0)
            return {};
        marks.insert(text.first(sign), text.sliced(sign + 1));
    }
    return marks;
}

/// Reads the arguments. Returns what is wrong with them; nothing if they are sound.
QString problemOf(QCommandLineParser& parser, const QStringList& arguments)
{
    if (!parser.parse(arguments))
        return parser.errorText();
    const QStringList others = parser.positionalArguments();
    return others.isEmpty() ? QString()
                            : QCoreApplication::translate("main", "Unexpected argument: %1").arg(others.first());
}

bool isToolkitOption(std::string_view argument)
{
    return argument.size() > 2 && argument.starts_with('-') && !argument.starts_with("--");
}

} // namespace

QStringList ownArguments(std::span<char* const> arguments)
{
    QStringList own;
    bool isValue = false;
    for (const std::string_view argument : arguments) {
        const bool isForToolkit = isToolkitOption(argument) || (isValue && !argument.starts_with('-'));
        isValue = isToolkitOption(argument);
        if (!isForToolkit)
            own.append(QString::fromLocal8Bit(argument));
    }
    return own;
}

bool isMisuse(const QStringList& arguments)
{
    return arguments.size() > 1 && !problemOf(Options().parser(), arguments).isEmpty();
}

StartMode readCommandLine(const QStringList& arguments)
{
    if (arguments.size() <= 1)
        return StartMode::Shown;
    Options options;
    if (const QString problem = problemOf(options.parser(), arguments); !problem.isEmpty()) {
        printError(problem);
        std::exit(exitMisuse);
    }
    options.parser().process(arguments);
    if (options.parser().isSet(options.atLogin))
        return StartMode::AtLogin;
    return options.parser().isSet(options.checkNow) ? StartMode::WithCheck : StartMode::Shown;
}

std::optional<CommandRequest> readCommand(const QStringList& arguments)
{
    Options options;
    QCommandLineParser& parser = options.parser();
    const auto refuse = [](const QString& reason) {
        printError(reason);
        return std::nullopt;
    };
    if (const QString problem = problemOf(parser, arguments); !problem.isEmpty())
        return refuse(problem);
    const QList<Kind> kinds = options.commands();
    const bool isJson = parser.isSet(options.json);
    if (kinds.isEmpty())
        return refuse(QCoreApplication::translate("main", "Use --json together with --status."));
    if (kinds.size() != 1 || parser.isSet(options.atLogin) || parser.isSet(options.checkNow) ||
        (isJson && kinds.first() != Kind::Status))
        return refuse(QCoreApplication::translate("main", "These options cannot be used together."));
    const auto marks = options.marks();
    if (!marks)
        return refuse(QCoreApplication::translate("main", "Write a day to mark as in --mark 2026-11-20=IN_OFFICE."));
    return CommandRequest{kinds.first(), isJson, *marks, parser.value(options.exportTo)};
}

bool asksForCommand(std::span<char* const> arguments)
{
    return hasOption(arguments,
                     {"--status", "--json", "--mark", "--undo", "--export", "--backup", "--search-provider"});
}

bool hasOption(std::span<char* const> arguments, std::initializer_list<std::string_view> options)
{
    return std::ranges::any_of(arguments, [&](std::string_view argument) {
        return std::ranges::find(options, argument.substr(0, argument.find('='))) != options.end();
    });
}
