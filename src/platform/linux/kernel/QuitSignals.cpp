// SPDX-License-Identifier: GPL-3.0-or-later
#include "QuitSignals.h"

#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr std::array quitSignals{SIGTERM, SIGINT, SIGHUP};
/// A pipe, open until the process ends: a handler may do little more than write.
std::array<int, 2> ends{};

void writeToPipe(int /*signal*/)
{
    const int before = errno;
    static_cast<void>(!write(ends[1], "", 1));
    errno = before;
}

} // namespace

QuitSignals::QuitSignals()
{
    if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return; // the signals go on ending the program at once
    auto* notifier = new QSocketNotifier(ends[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] {
        char written = 0;
        static_cast<void>(!read(ends[0], &written, 1));
        Q_EMIT requested();
    });
    for (const int signal : quitSignals)
        std::signal(signal, writeToPipe);
}

QuitSignals::~QuitSignals()
{
    for (const int signal : quitSignals)
        std::signal(signal, SIG_DFL);
}
