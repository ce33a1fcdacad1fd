// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Daemon.h"
#include "Eventually.h"
#include "PlatformError.h"
#include "Testing.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QFile>
#include <QTemporaryDir>

#include <QCoroTask>

/// What a task finds, or throws, in the end.
template <class T> T endOf(const QCoro::Task<T>& task)
{
    if (!eventually([&] { return task.isReady(); }))
        throw std::logic_error("the task does not end");
    return task.operator co_await().await_resume();
}

/// A system bus and a session bus that start no service by themselves. A process knows one of each for all its life.
class PrivateBuses : public testing::Environment {
    void SetUp() override // NOLINT(readability-identifier-naming)
    {
        QFile rules(m_folder.filePath(u"bus.conf"_s));
        EXPECT_TRUE(rules.open(QFile::WriteOnly));
        rules.write("<busconfig><type>session</type><listen>unix:tmpdir=/tmp</listen><policy context='default'><allow "
                    "send_destination='*' eavesdrop='true'/><allow eavesdrop='true'/><allow own='*'/></policy>"
                    "</busconfig>");
        rules.close();
        const QStringList options{u"--print-address"_s, u"--nofork"_s, u"--config-file="_s + rules.fileName()};
        for (const char* variable : {"DBUS_SYSTEM_BUS_ADDRESS", "DBUS_SESSION_BUS_ADDRESS"})
            qputenv(variable, m_buses.emplace_back(new Daemon(u"dbus-daemon"_s, options))->firstLine());
        if (!QDBusConnection::systemBus().isConnected() || !QDBusConnection::sessionBus().isConnected())
            qFatal("There are no buses"); // a failure here would skip the tests, and not fail them
    }
    void TearDown() override { m_buses.clear(); } // NOLINT(readability-identifier-naming)

    const QTemporaryDir m_folder;
    std::vector<std::unique_ptr<Daemon>> m_buses;
};
inline testing::Environment* const privateBuses = testing::AddGlobalTestEnvironment(new PrivateBuses);

/// What a broken service could answer: a signature, and the code of it.
inline constexpr std::pair<const char*, const char*> nonsense[]{
    {"", ""},
    {"s", "ret = 'x'"},
    {"i", "ret = -1"},
    {"as", "ret = []"},
    {"(ss)", "ret = ('a', 'b')"},
    {"a(ss)", "ret = [('a', 'b')] * 100000"},
    {"a{sv}", "ret = {'a': ('b', 1)}"},
    {"a{oa{sa{sv}}}", "ret = {'/a': {'org.freedesktop.NetworkManager.Device': {'Interface': 7, 'State': 'x'}, "
                      "'org.freedesktop.NetworkManager.Device.Wireless': {'AccessPoints': [('a', 1)]}}}"},
    {"s", "raise ValueError"},
};

/// A service that is played here. It is spoken to over the connection of the code under test: whatever it told
/// everybody before it answers has arrived here, too, when its answer has.
struct PlayedService {
    [[nodiscard]] bool isThere() const { return bus.interface()->isServiceRegistered(name).value(); }
    void start(const QString& program, const QStringList& arguments)
    {
        daemon = std::make_unique<Daemon>(program, arguments);
        ASSERT_TRUE(eventually([this] { return isThere(); }));
    }
    void startMock(const QString& file, const QString& options = u"{}"_s)
    {
        startMock({u"-p"_s, options, u"-t"_s, file});
    }
    void startMock(const QStringList& arguments)
    {
        start(u"/usr/bin/python3"_s, u"-m dbusmock -l /dev/null"_s.split(u' ') + arguments);
    }
    void stop()
    {
        daemon.reset();
        ASSERT_TRUE(eventually([this] { return !isThere(); }));
    }
    /// Keeps it from answering until it is signalled to continue.
    void suspend() const
    {
        const auto process = static_cast<pid_t>(daemon->processId());
        ASSERT_EQ(kill(process, SIGSTOP), 0);
        ASSERT_TRUE(eventually([&] {
            QFile status(u"/proc/%1/stat"_s.arg(process));
            return status.open(QFile::ReadOnly) && status.readAll().contains(") T ");
        }));
    }
    void resume() const { kill(static_cast<pid_t>(daemon->processId()), SIGCONT); }

    template <class... Arguments>
    QVariant call(const QString& interface, const char* method, const Arguments&... arguments)
    {
        auto message = QDBusMessage::createMethodCall(name, path, interface, QString::fromLatin1(method));
        message.setArguments({QVariant::fromValue(arguments)...});
        const QDBusMessage reply = bus.call(message, QDBus::Block, 10'000);
        if (reply.type() != QDBusMessage::ReplyMessage)
            throw PlatformError(reply.errorMessage());
        return reply.arguments().value(0);
    }
    template <class... Arguments> QVariant tell(const char* method, const Arguments&... arguments)
    {
        return call(u"org.freedesktop.DBus.Mock"_s, method, arguments...);
    }

    QDBusConnection bus;
    QString name, path;
    std::unique_ptr<Daemon> daemon = nullptr;
};
