// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Testing.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

/// The folders in which a program keeps what is its user's, and what else it finds around it.
class Home {
public:
    Home()
    {
        environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
        environment.remove(u"LANGUAGE"_s);
        environment.insert(u"XDG_DATA_HOME"_s, m_folder.filePath(u"data"_s));
        environment.insert(u"XDG_CONFIG_HOME"_s, m_folder.filePath(u"config"_s));
        environment.insert(u"QT_LOGGING_RULES"_s, u"pellory.*=true"_s);
    }

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();

private:
    const QTemporaryDir m_folder;

public:
    const QString store = m_folder.filePath(u"data/Pellory/Pellory.store"_s);
};

/// The program, until it is ended.
class RunningProgram {
public:
    static constexpr int patience = 30'000;

    explicit RunningProgram(const Home& home)
    {
        m_process.setProcessEnvironment(home.environment);
        m_process.setProcessChannelMode(QProcess::MergedChannels);
        m_process.start(QStringLiteral(PELLORY_PROGRAM), {});
    }
    ~RunningProgram() { end(SIGKILL); }
    Q_DISABLE_COPY_MOVE(RunningProgram)

    void end(int signal)
    {
        if (m_process.state() == QProcess::NotRunning)
            return;
        ::kill(static_cast<pid_t>(m_process.processId()), signal);
        EXPECT_TRUE(m_process.waitForFinished(patience));
    }

    /// Waits until the program has logged a line that ends so.
    [[nodiscard]] bool logs(const QByteArray& end)
    {
        return QTest::qWaitFor([&] { return log().contains(end + '\n'); }, patience);
    }

    /// All that it has said so far.
    [[nodiscard]] QByteArray log() { return m_log += m_process.readAll(); }

private:
    QProcess m_process;
    QByteArray m_log;
};
