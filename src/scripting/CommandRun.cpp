// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandRun.h"

#include "CommandError.h"
#include "FileBytes.h"
#include "FileError.h"
#include "RunningProgram.h"
#include "SearchProvider.h"
#include "StatusText.h"

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

struct CommandRun {
    Q_DECLARE_TR_FUNCTIONS(CommandRun)
};

std::unique_ptr<CommandTarget> targetFor(const StoredData::Place& place)
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (RunningProgram::isThere(bus))
        return std::make_unique<RunningProgram>(bus);
    return std::make_unique<StoredData>(place);
}

[[nodiscard]] int fail(const QString& text)
{
    printError(text);
    return EXIT_FAILURE;
}

// A full disk or a closed pipe is noticed with the last byte.
[[nodiscard]] int print(const QByteArray& text)
{
    const auto size = static_cast<std::size_t>(text.size());
    if (std::fwrite(text.constData(), 1, size, stdout) == size && std::fflush(stdout) == 0)
        return EXIT_SUCCESS;
    return fail(CommandRun::tr("Standard output cannot be written."));
}

[[nodiscard]] int writeTo(const QString& path, const QByteArray& contents)
{
    if (path == "-"_L1)
        return print(contents);
    try {
        writeFile(path, contents);
        return EXIT_SUCCESS;
    } catch (const FileError& error) {
        return fail(u"%1: %2"_s.arg(path, error.description()));
    }
}

[[nodiscard]] int carryOut(const CommandRequest& request, CommandTarget& target)
{
    switch (request.kind) {
    case CommandRequest::Kind::Mark:
        DayCommands::verify(request.marks);
        target.mark(request.marks);
        return EXIT_SUCCESS;
    case CommandRequest::Kind::Undo:
        target.undo();
        return EXIT_SUCCESS;
    case CommandRequest::Kind::Export:
        return writeTo(request.file, target.csv());
    case CommandRequest::Kind::Backup:
        return print(target.backUp().toLocal8Bit() + '\n');
    case CommandRequest::Kind::Status:
    case CommandRequest::Kind::SearchProvider:
        break;
    }
    const QVariantMap status = target.status();
    return print((request.isJson ? statusJson(status) : statusText(status).toLocal8Bit()) + '\n');
}

} // namespace

void printError(const QString& text)
{
    std::fprintf(stderr, "pellory: %s\n", qPrintable(text));
}

int runCommand(const CommandRequest& request, const StoredData::Place& place)
{
    if (request.kind == CommandRequest::Kind::SearchProvider)
        return SearchProvider(place).run();
    try {
        return carryOut(request, *targetFor(place));
    } catch (const CommandError& error) {
        printError(error.description());
        return error.isMisuse() ? exitMisuse : EXIT_FAILURE;
    }
}
