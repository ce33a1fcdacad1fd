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
// A pipe, because a signal handler may do little more than write. Open until the process ends.
std::array<int, 2> pipeEnds{};

void writeToPipe(int /*signal*/)
{
    const int savedErrno = errno;
    static_cast<void>(!write(pipeEnds[1], "", 1));
    errno = savedErrno;
}

} // namespace

QuitSignals::QuitSignals()
{
    if (pipe2(pipeEnds.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return; // signals still end the program, but at once
    auto* notifier = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] {
        char written = 0;
        static_cast<void>(!read(pipeEnds[0], &written, 1));
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
