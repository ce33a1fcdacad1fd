// SPDX-License-Identifier: GPL-3.0-or-later
#include "AutostartEntry.h"
#include "LaunchAtLogin.h"
#include "PrivateBuses.h"
#include "SingleInstance.h"
#include "StatusNotifierHost.h"

#include <QDBusPendingCallWatcher>
#include <QSignalSpy>

using namespace std::chrono_literals;
using Claim = SingleInstance::Claim;
using Request = SingleInstance::Request;

TEST(LaunchAtLoginTest, isReadFromTheFileAsTheDesktopReadsIt)
{
    const QTemporaryDir folder;
    qputenv("HOST_XDG_CONFIG_HOME", folder.filePath(u"new"_s).toUtf8()); // the desktop's outside a sandbox
    AutostartEntry::ofThisProgram(folder.path()).registerItem();
    QFile file(folder.filePath(u"new/autostart/io.github.pellory.Pellory.desktop"_s));
    ASSERT_TRUE(file.open(QFile::ReadOnly));
    EXPECT_TRUE(file.readAll().contains("Exec=\"flatpak\" \"run\" \"io.github.pellory.Pellory\" --at-login\n"));
    AutostartEntry entry(folder.filePath(u"new"_s), {uR"(/opt/a b/%f "$HOME" `\)"_s}), nowhere(file.fileName(), {});
    LaunchAtLogin login(entry);
    login.setEnabled(true);
    file.close();
    ASSERT_TRUE(file.open(QFile::ReadWrite));
    const QByteArray all = file.readAll();
    EXPECT_TRUE(all.contains(R"(Exec="/opt/a b/%%f \\"\\$HOME\\" \\`\\\\" --at-login)")) << all.constData();
    for (const auto& [text, isEnabled] :
         {std::pair(all + "Hidden = true \r\n", false),
          {all + "X-GNOME-Autostart-enabled=false", false},
          {all + "Hidden=false\nX-GNOME-Autostart-enabled=true\n#Hidden=true\nHidden[de]=true\n", true},
          {"[Other]\nHidden=true\n" + all + "[Desktop Action Open]\nX-GNOME-Autostart-enabled=false\n", true},
          {"[Other]\nType=Application\n", false}}) {
        EXPECT_TRUE(file.resize(0) && file.seek(0) && file.write(text) > 0 && file.flush());
        EXPECT_EQ(login.isEnabled(), isEnabled) << text.constData();
    }
    EXPECT_THROW(nowhere.registerItem(), PlatformError);
}

TEST(LaunchAtLoginTest, whatOthersDoToTheFileIsNoticedEvenIfThereIsNoFolderYet)
{
    const QTemporaryDir folder;
    AutostartEntry entry(folder.filePath(u"new"_s), {u"pellory"_s});
    QFile file(folder.filePath(u"new/autostart/io.github.pellory.Pellory.desktop"_s));
    QObject owner;
    bool isNoticed = false;
    entry.watch(owner, [&] { isNoticed = true; });
    const std::function<void()> changes[]{
        [&] { entry.registerItem(); },
        [&] { EXPECT_TRUE(file.open(QFile::Append) && file.write("Hidden=true\n") > 0), file.close(); },
        [&] { EXPECT_TRUE(file.rename(folder.filePath(u"elsewhere"_s))); },
        [&] { EXPECT_TRUE(QDir(folder.filePath(u"new"_s)).removeRecursively()); },
        [&] { entry.registerItem(); },
    };
    for (const auto& change : changes) {
        change();
        EXPECT_TRUE(eventually([&] { return std::exchange(isNoticed, false); })) << &change - changes;
    }
}

TEST(SingleInstanceTest, handsOverToTheFirstOneUnlessItIsDead)
{
    qputenv("XDG_ACTIVATION_TOKEN", "token");
    const auto interface = u"org.freedesktop.Application"_s;
    MockService first{QDBusConnection::sessionBus(), u"io.github.pellory.Pellory"_s, u"/io/github/pellory/Pellory"_s};
    first.startMock({first.name, first.path, interface});
    for (const auto& [request, code, outcome] :
         {std::tuple(Request::None, "raise ValueError", Claim::HandedOver),
          {Request::Show, "assert args[-1] == {'activation-token': 'token'}", Claim::HandedOver},
          {Request::Check, "assert list(args[:2]) == ['run-check', []]", Claim::HandedOver},
          {Request::Show, "raise ValueError", Claim::Refused},
          {Request::Show, "import os; os._exit(1)", Claim::Owned}}) {
        first.answer(interface, "Activate", "a{sv}", "", code);
        first.answer(interface, "ActivateAction", "sava{sv}", "", code);
        EXPECT_EQ(SingleInstance(200ms).claim(request), outcome) << code;
    }
    first.bus.unregisterService(first.name);
    SingleInstance instance;
    EXPECT_EQ(instance.claim(Request::Show, QDBusConnection(u"none"_s)), Claim::Owned);
    QSignalSpy activated(&instance, &SingleInstance::activated);
    instance.Activate({});
    instance.Open({}, {{u"desktop-startup-id"_s, u"id"_s}});
    instance.ActivateAction(u"show"_s, {}, {{u"desktop-startup-id"_s, u"id"_s}, {u"activation-token"_s, u"token"_s}});
    EXPECT_EQ(activated, (QList<QVariantList>{{QString()}, {u"id"_s}, {u"token"_s}}));
}

TEST(StatusNotifierHostTest, isThereWhileTheWatcherKnowsAHost)
{
    MockService watcher{QDBusConnection::sessionBus(), u"org.kde.StatusNotifierWatcher"_s, u"/StatusNotifierWatcher"_s};
    StatusNotifierHost host;
    QString reported;
    QObject::connect(&host, &TrayHost::appeared, &host, [&] { reported += u'+'; });
    QObject::connect(&host, &TrayHost::gone, &host, [&] { reported += u'-'; });
    host.start();
    watcher.startMock();
    const auto property = u"IsStatusNotifierHostRegistered"_s;
    watcher.tell("AddProperty", watcher.name, property, QDBusVariant(false));
    for (const auto& [isRegistered, signal] : {std::pair(true, "StatusNotifierHostRegistered"),
                                               {true, "StatusNotifierHostUnregistered"}, // another one is left
                                               {false, "StatusNotifierHostUnregistered"},
                                               {true, "StatusNotifierHostRegistered"}}) {
        watcher.tell("UpdateProperties", watcher.name, QVariantMap{{property, isRegistered}});
        watcher.emitSignal(watcher.name, signal, "", {});
        EXPECT_TRUE(eventually([&] { return host.findChild<QDBusPendingCallWatcher*>() == nullptr; }));
    }
    watcher.stop();
    EXPECT_TRUE(eventually([&] { return reported == u"+-+-"_s; })) << qPrintable(reported);
}
