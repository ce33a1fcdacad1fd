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

#include <sys/wait.h>

/// What a task returns, or throws.
template <class T> T resultOf(const QCoro::Task<T>& task)
{
    if (!eventually([&] { return task.isReady(); }))
        throw std::logic_error("the task does not end");
    return task.operator co_await().await_resume();
}

/// A system bus and a session bus that start no service by themselves.
class PrivateBuses : public testing::Environment {
public:
    /// Ends a bus if it runs, and starts it where programs look for it.
    void start(const char* variable)
    {
        const QString address = u"unix:path="_s + m_folder.filePath(QString::fromLatin1(variable));
        qputenv(variable, address.toLatin1());
        // The rules of the bus of screen readers: anybody may do anything.
        const QStringList options{u"--config-file=/usr/share/defaults/at-spi2/accessibility.conf"_s,
                                  u"--address="_s + address, u"--print-address"_s, u"--nofork"_s};
        m_buses.erase(variable);
        if (!m_buses.try_emplace(variable, u"dbus-daemon"_s, options).first->second.firstLine().startsWith("unix:"))
            qFatal("There is no bus"); // a failure here would skip the tests, and not fail them
    }

private:
    // NOLINTBEGIN(readability-identifier-naming)
    void SetUp() override
    {
        for (const char* variable : {"DBUS_SYSTEM_BUS_ADDRESS", "DBUS_SESSION_BUS_ADDRESS"})
            start(variable);
    }
    void TearDown() override { m_buses.clear(); }
    // NOLINTEND(readability-identifier-naming)

    const QTemporaryDir m_folder;
    std::map<std::string, Daemon> m_buses;
};
inline auto* const privateBuses = new PrivateBuses;
inline testing::Environment* const environment = testing::AddGlobalTestEnvironment(privateBuses);

/// A simulated service. The test talks to it over the connection of the code under test: when a reply has arrived, so
/// has everything that the service sent before it.
struct MockService {
    [[nodiscard]] bool isThere() const { return bus.interface()->isServiceRegistered(name); }
    /// Without arguments for dbusmock its one interface is called as the service.
    void startMock(const QStringList& arguments = {})
    {
        const QStringList options{u"-m"_s, u"dbusmock"_s, u"-l"_s, u"/dev/null"_s};
        daemon = std::make_unique<Daemon>(u"/usr/bin/python3"_s,
                                          options + (arguments.isEmpty() ? QStringList{name, path, name} : arguments));
        ASSERT_TRUE(eventually([this] { return isThere(); }));
    }
    void stop()
    {
        daemon.reset();
        ASSERT_TRUE(eventually([this] { return !isThere(); }));
    }
    /// Keeps it from answering for the rest of its life.
    void suspend() const
    {
        const auto process = static_cast<pid_t>(daemon->processId());
        ASSERT_TRUE(kill(process, SIGSTOP) == 0 && waitpid(process, nullptr, WUNTRACED) == process);
    }

    template <class... Arguments> QVariant tell(const char* method, const Arguments&... arguments)
    {
        auto message =
            QDBusMessage::createMethodCall(name, path, u"org.freedesktop.DBus.Mock"_s, QString::fromLatin1(method));
        message.setArguments({variant(arguments)...});
        const QDBusMessage reply = bus.call(message, QDBus::Block, 10'000);
        if (reply.type() != QDBusMessage::ReplyMessage)
            throw PlatformError(reply.errorMessage());
        return reply.arguments().value(0);
    }
    /// Makes a line of Python answer a method from now on.
    void answer(const QString& interface, const char* method, const char* in, const char* out, const char* code)
    {
        tell("AddMethod", interface, method, in, out, code);
    }
    void emitSignal(const QString& interface, const char* signal, const char* signature, const QVariantList& arguments)
    {
        tell("EmitSignal", interface, signal, signature, arguments);
        QCoreApplication::processEvents();
    }

    template <class T> static QVariant variant(const T& value) { return QVariant::fromValue(value); }
    static QVariant variant(const char* text) { return QString::fromUtf8(text); }

    QDBusConnection bus;
    QString name, path;
    std::unique_ptr<Daemon> daemon = nullptr;
};
