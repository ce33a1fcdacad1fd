// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProcess>

#include <csignal>
#include <sys/prctl.h>

/// A child that does not outlive this process.
struct Daemon : public QProcess {
    Daemon(const QString& program, const QStringList& arguments)
    {
        setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
        setStandardInputFile(nullDevice());
        start(program, arguments);
    }
    ~Daemon() override { kill(), waitForFinished(10'000); }
    [[nodiscard]] QByteArray firstLine() { return waitForReadyRead(10'000) ? readLine().trimmed() : QByteArray(); }
};
