// SPDX-License-Identifier: GPL-3.0-or-later
#include "AutostartEntry.h"
#include "LaunchAtLogin.h"
#include "PrivateBuses.h"
#include "QuitSignals.h"
#include "SingleInstance.h"
#include "StatusNotifierHost.h"

#include <QDBusPendingCallWatcher>
#include <QDateTime>
#include <QFileInfo>
#include <QSignalSpy>

using namespace std::chrono_literals;
using Claim = SingleInstance::Claim;
using Request = SingleInstance::Request;

TEST(LaunchAtLoginTest, isWhatTheDesktopMakesOfTheFile)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"new/autostart/io.github.pellory.Pellory.desktop"_s));
    AutostartEntry entry(folder.filePath(u"new"_s), {uR"(/opt/a b/%f "$HOME" `\)"_s});
    AutostartEntry nowhere(file.fileName(), {});
    LaunchAtLogin login(entry), broken(nowhere);
    for (const bool isWanted : {false, true, true}) {
        QSignalSpy announced(&login, &LaunchAtLogin::willChange);
        login.setEnabled(isWanted);
        EXPECT_TRUE(login.isEnabled() == isWanted && announced.size() == 1);
    }
    EXPECT_FALSE(QFile::permissions(QFileInfo(file).path()) & QFile::Permissions(0x77));
    ASSERT_TRUE(file.open(QFile::ReadWrite));
    const QByteArray all = file.readAll();
    EXPECT_TRUE(all.startsWith("[Desktop Entry]\nType=Application\nName=Pellory\n"));
    EXPECT_TRUE(all.contains(R"(Exec="/opt/a b/%%f \\"\\$HOME\\" \\`\\\\" --at-login)")) << all.constData();
    const std::pair<QByteArray, bool> rows[]{
        {all + "Hidden = true \r\n", false},
        {all + "X-GNOME-Autostart-enabled=false", false},
        {all + "Hidden=false\nX-GNOME-Autostart-enabled=true\n", true},
        {all + "Hidden=True\n#Hidden=true\nHidden[de]=true\nhidden=true\n", true},
        {"[Other]\nHidden=true\n" + all + "[Desktop Action Open]\nX-GNOME-Autostart-enabled=false\n", true},
        {"[Other]\nType=Application\n", false}};
    for (const auto& [text, isEnabled] : rows) {
        EXPECT_TRUE(file.resize(0) && file.seek(0) && file.write(text) > 0 && file.flush());
        EXPECT_EQ(login.isEnabled(), isEnabled) << text.constData();
    }
    testing::internal::CaptureStderr();
    for (const bool isWanted : {true, false})
        broken.setEnabled(isWanted);
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "pellory.login: Failed to enable launch at login: File exists\n"
              "pellory.login: Failed to disable launch at login: Not a directory\n");
}

TEST(LaunchAtLoginTest, startsTheProgramAsTheDesktopCan)
{
    const QTemporaryDir folder;
    const QByteArray home = folder.path().toUtf8(), self = QCoreApplication::applicationFilePath().toUtf8();
    const QByteArray flatpak = R"("flatpak" "run" "io.github.pellory.Pellory")";
    qputenv("HOME", home);
    qputenv("XDG_CONFIG_HOME", home + "/own");
    const std::tuple<QString, QByteArray, QString, QByteArray> rows[]{
        {u"/nonexistent"_s, home + "/host", u"own"_s, '"' + self + '"'},
        {folder.path(), home + "/host", u"host"_s, flatpak},
        {folder.path(), {}, u".config"_s, flatpak}};
    for (const auto& [sandboxMark, hostFolder, place, command] : rows) {
        EXPECT_TRUE(hostFolder.isEmpty() ? qunsetenv("HOST_XDG_CONFIG_HOME")
                                         : qputenv("HOST_XDG_CONFIG_HOME", hostFolder));
        AutostartEntry::ofThisProgram(sandboxMark).registerItem();
        QFile file(folder.filePath(place + u"/autostart/io.github.pellory.Pellory.desktop"_s));
        EXPECT_TRUE(file.open(QFile::ReadOnly)) << place.toStdString();
        EXPECT_TRUE(file.readAll().contains("\nExec=" + command + " --at-login\n")) << place.toStdString();
    }
}

TEST(SingleInstanceTest, theFirstOneIsToldOfOthersUnlessItIsDead)
{
    const QTemporaryDir folder;
    const QDBusConnection noBus(u"none"_s);
    qputenv("XDG_RUNTIME_DIR", folder.path().toUtf8());
    qputenv("XDG_ACTIVATION_TOKEN", "token");
    qunsetenv("DESKTOP_STARTUP_ID");
    const auto interface = u"org.freedesktop.Application"_s;
    PlayedService first{QDBusConnection::sessionBus(), u"io.github.pellory.Pellory"_s, u"/io/github/pellory/Pellory"_s};
    const std::tuple<const char*, Request, Claim> rows[]{
        {"raise ValueError", Request::None, Claim::HandedOver},
        {"assert args[-1] == {'activation-token': 'token'}", Request::Show, Claim::HandedOver},
        {"assert list(args[:2]) == ['run-check', []]", Request::Check, Claim::HandedOver},
        {"raise ValueError", Request::Show, Claim::Refused},
        {"import os, signal; os.kill(os.getpid(), signal.SIGSTOP)", Request::Check, Claim::Refused},
        {"import os; os._exit(1)", Request::Show, Claim::Owned}};
    for (const auto& [code, request, outcome] : rows) {
        first.startMock({first.name, first.path, interface});
        const bool isCheck = request == Request::Check;
        first.tell("AddMethod", interface, isCheck ? u"ActivateAction"_s : u"Activate"_s,
                   isCheck ? u"sava{sv}"_s : u"a{sv}"_s, QString(), QString::fromLatin1(code));
        EXPECT_EQ(SingleInstance(200ms).claim(request), outcome) << code;
        first.bus.unregisterService(first.name);
        first.stop();
    }
    SingleInstance instance;
    EXPECT_EQ(instance.claim(Request::Show), Claim::Owned);
    QSignalSpy activated(&instance, &SingleInstance::activated);
    const auto bus = QDBusConnection::connectToBus(qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"), u"other"_s);
    const QVariantMap id{{u"desktop-startup-id"_s, u"id"_s}};
    const QVariantMap both{{u"desktop-startup-id"_s, u"id"_s}, {u"activation-token"_s, u"token"_s}};
    const std::tuple<QString, QVariantList, QString> calls[]{
        {u"Activate"_s, {QVariantMap()}, {}},
        {u"Open"_s, {QStringList(), id}, u"id"_s},
        {u"ActivateAction"_s, {u"show"_s, QVariantList(), both}, u"token"_s}};
    for (const auto& [method, arguments, token] : calls) {
        auto call = QDBusMessage::createMethodCall(first.name, first.path, interface, method);
        call.setArguments(arguments);
        const auto answer = bus.asyncCall(call);
        EXPECT_TRUE(eventually([&] { return answer.isFinished(); }) && !answer.isError() && activated.size() == 1);
        EXPECT_EQ(activated.takeFirst().value(0).toString(), token);
    }
    QSignalSpy checkRequested(&instance, &SingleInstance::checkRequested);
    instance.ActivateAction(u"run-check"_s, {}, {});
    EXPECT_TRUE(checkRequested.size() == 1 && activated.isEmpty());
    QDBusConnection::disconnectFromBus(u"other"_s);
    first.bus.unregisterService(first.name);
    EXPECT_EQ(instance.claim(Request::Show, noBus), Claim::Owned);
    QFile lock(folder.filePath(u"pellory.lock"_s));
    EXPECT_TRUE(lock.open(QFile::ReadWrite) &&
                lock.setFileTime(QDateTime::fromSecsSinceEpoch(1), QFile::FileModificationTime));
    EXPECT_EQ(SingleInstance().claim(Request::Show, noBus), Claim::Refused) << "of whatever age the lock is";
}

TEST(QuitSignalsTest, areHeardOfAndAreTheSystemsOwnAfterwards)
{
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        auto signals = std::make_unique<QuitSignals>();
        QSignalSpy requested(signals.get(), &QuitSignals::requested);
        raise(signal);
        EXPECT_TRUE(eventually([&] { return requested.size() == 1; })) << signal;
        signals.reset();
        EXPECT_EQ(std::signal(signal, SIG_DFL), SIG_DFL) << signal;
    }
}

TEST(StatusNotifierHostTest, isThereWhileTheWatcherKnowsOne)
{
    const auto property = u"IsStatusNotifierHostRegistered"_s, name = u"org.kde.StatusNotifierWatcher"_s;
    PlayedService watcher{QDBusConnection::sessionBus(), name, u"/StatusNotifierWatcher"_s};
    StatusNotifierHost host;
    QString told;
    QObject::connect(&host, &TrayHost::appeared, &host, [&] { told += u'+'; });
    QObject::connect(&host, &TrayHost::gone, &host, [&] { told += u'-'; });
    host.start();
    watcher.startMock({name, watcher.path, name});
    watcher.tell("AddProperty", name, property, QDBusVariant(false));
    for (const char* row :
         {"0 Registered ", "1 Registered +", "1 Unregistered ", "0 Unregistered -", "1 Registered +"}) {
        const QStringList parts = QString::fromLatin1(row).split(u' ');
        watcher.tell("UpdateProperties", name, QVariantMap{{property, parts[0] == u"1"_s}});
        watcher.tell("EmitSignal", name, u"StatusNotifierHost"_s + parts[1], QString(), QVariantList());
        QCoreApplication::processEvents();
        EXPECT_TRUE(eventually([&] { return host.findChild<QDBusPendingCallWatcher*>() == nullptr; }));
        EXPECT_EQ(std::exchange(told, {}), parts[2]) << row;
    }
    watcher.stop();
    EXPECT_TRUE(eventually([&] { return told == u'-'; }));
}
