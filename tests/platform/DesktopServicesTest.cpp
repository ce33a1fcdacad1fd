// SPDX-License-Identifier: GPL-3.0-or-later
#include "DesktopSystemSettings.h"
#include "FreedesktopNotifier.h"
#include "PrivateBuses.h"

#include <QDBusPendingCallWatcher>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QStandardPaths>

using namespace std::chrono_literals;

class FreedesktopNotifierTest : public testing::Test {
protected:
    /// What the server is told when this is posted.
    QVariantList toldBy(const Notification& notification)
    {
        server.tell("ClearCalls");
        notifier.post(notification);
        QVariantList told;
        EXPECT_TRUE(eventually([&] {
            const auto calls = server.tell("GetMethodCalls", u"Notify"_s).value<QDBusArgument>();
            for (calls.beginArray(); !calls.atEnd(); calls.endStructure()) {
                quint64 time = 0;
                calls.beginStructure();
                calls >> time >> told;
            }
            calls.endArray();
            return !told.isEmpty();
        }));
        return told;
    }

    PlayedService server{QDBusConnection::sessionBus(), u"org.freedesktop.Notifications"_s,
                         u"/org/freedesktop/Notifications"_s};
    FreedesktopNotifier notifier;
};

TEST_F(FreedesktopNotifierTest, tellsTheServerWhatItCanShow)
{
    notifier.post({u"Nobody is there"_s, {}, u"a"_s});
    QCoreApplication::processEvents();
    const auto application = u"io.github.pellory.Pellory"_s;
    const std::pair<QString, QString> rows[]{{{}, u"<b> & \"B\""_s},
                                             {u"-markup"_s, u"&lt;b&gt; &amp; &quot;B&quot;"_s}};
    for (const auto& [ability, body] : rows) {
        server.startMock(u"notification_daemon"_s, u"{\"capabilities\": \"body body%1\"}"_s.arg(ability));
        QVariantList told = toldBy({u"A & B"_s, u"<b> & \"B\""_s, {}});
        const auto hints = qdbus_cast<QVariantMap>(told.takeAt(6));
        EXPECT_EQ(told, (QVariantList{u"Pellory"_s, 0U, application, u"A & B"_s, body, QStringList(), -1}));
        const auto sound = u"message-new-instant"_s;
        EXPECT_EQ(hints, (QVariantMap{{u"desktop-entry"_s, application}, {u"sound-name"_s, sound}, {u"urgency"_s, 1}}));
        EXPECT_EQ(hints[u"urgency"_s].typeId(), QMetaType::UChar); // equal to all numbers, but servers read no other
        // In the second round these are the numbers of a server that knows nothing of the first round.
        const std::pair<QString, uint> topics[]{{u"a"_s, 0}, {u"a"_s, 2}, {u"b"_s, 0},
                                                {u"a"_s, 2}, {u"b"_s, 3}, {{}, 0}};
        for (const auto& [topic, replaced] : topics)
            EXPECT_EQ(toldBy({u"Title"_s, {}, topic}).at(1), replaced) << qPrintable(topic);
        server.stop();
    }
}

TEST_F(FreedesktopNotifierTest, leadsToTheDayOfANotificationOnScreen)
{
    QString opened;
    QObject::connect(&notifier, &Notifier::activated, &notifier,
                     [&](QDate day, const QString& token) { opened += day.toString(u"d"_s) + u'.' + token; });
    server.startMock(u"notification_daemon"_s, u"{\"capabilities\": \"actions\"}"_s);
    for (int number = 1; number <= 22; ++number) // more than are remembered
        EXPECT_EQ(toldBy({{}, {}, {}, QDate(2026, 11, number)}).value(5), QStringList({u"default"_s, u"Open"_s}));
    toldBy({}); // so the answers to the others have been read
    for (const char* row :
         {"ActionInvoked 1 default ", "ActionInvoked 99 default ", "ActivationToken 7 token ",
          "ActionInvoked 8 default 8.", "ActionInvoked 9 settings ", "ActivationToken 9 token ",
          "ActionInvoked 9 default 9.token", "NotificationClosed 10 2 ", "ActionInvoked 10 default "}) {
        const QStringList parts = QString::fromLatin1(row).split(u' ');
        const QVariant second = parts[0] == u"NotificationClosed"_s ? QVariant(2U) : parts[2];
        const auto signature = second.typeId() == QMetaType::UInt ? u"uu"_s : u"us"_s;
        server.tell("EmitSignal", server.name, parts[0], signature, QVariantList{parts[1].toUInt(), second});
        QCoreApplication::processEvents();
        EXPECT_EQ(std::exchange(opened, {}), parts[3]) << row;
    }
}

TEST_F(FreedesktopNotifierTest, goesOnAfterAServerThatHangsOrDiesOrTalksNonsense)
{
    FreedesktopNotifier impatient(3s);
    const QTemporaryDir folder;
    QFile log(folder.filePath(u"log"_s));
    const auto startServer = [&] { server.startMock({u"-l"_s, log.fileName(), u"-t"_s, u"notification_daemon"_s}); };
    const auto isToldOf = [&](const QString& title) {
        notifier.post({title, {}, {}}), impatient.post({title + u'!', {}, {}});
        return eventually([&, heard = QByteArray()]() mutable {
            heard += log.isOpen() || log.open(QFile::ReadOnly) ? log.readAll() : QByteArray();
            return heard.contains(title.toUtf8() + '"') && heard.contains(title.toUtf8() + '!');
        });
    };
    startServer(), server.suspend();
    notifier.post({}), impatient.post({});
    EXPECT_TRUE(eventually([&] { return impatient.findChild<QDBusPendingCallWatcher*>() != nullptr; }));
    EXPECT_TRUE(eventually([&] { return impatient.findChild<QDBusPendingCallWatcher*>() == nullptr; }));
    EXPECT_NE(notifier.findChild<QDBusPendingCallWatcher*>(), nullptr); // until the server is known to be dead
    server.stop(), startServer();
    EXPECT_TRUE(isToldOf(u"Again"_s));
    for (const auto& [signature, code] : nonsense) {
        for (const auto& [method, taken] :
             {std::pair(u"GetCapabilities"_s, QString()), {u"Notify"_s, u"susssasa{sv}i"_s}})
            server.tell("AddMethod", server.name, method, taken, QString::fromLatin1(signature),
                        QString::fromLatin1(code));
        EXPECT_TRUE(isToldOf(QString::number(quintptr(code)))) << code;
    }
}

TEST_F(FreedesktopNotifierTest, isShownByARealServer)
{
    for (const QString& program : {u"dunst"_s, u"Xvfb"_s}) {
        if (QStandardPaths::findExecutable(program).isEmpty())
            GTEST_SKIP() << qPrintable(program) << " is not installed";
    }
    Daemon display(u"Xvfb"_s, {u"-displayfd"_s, u"1"_s});
    qputenv("DISPLAY", ":" + display.firstLine());
    server.start(u"dunst"_s, {});
    const std::pair<QString, int> rows[]{{u"a"_s, 1}, {u"b"_s, 2}, {u"a"_s, 2}};
    for (const auto& row : rows) {
        notifier.post({row.first, u"Today & tomorrow"_s, row.first}); // equal ones would be shown as one
        EXPECT_TRUE(eventually([&] {
            const auto shown = server.call(u"org.freedesktop.DBus.Properties"_s, "Get", u"org.dunstproject.cmd0"_s,
                                           u"displayedLength"_s);
            return shown.value<QDBusVariant>().variant() == row.second;
        }));
    }
}

TEST(DesktopSystemSettingsTest, opensThePageOrSaysWhatElseCanBeDone)
{
    const QTemporaryDir folder;
    const auto restore = qScopeGuard([path = qgetenv("PATH")] { qputenv("PATH", path); });
    QFile record(folder.filePath(u"record"_s)), program(folder.filePath(u"gnome-control-center"_s));
    ASSERT_TRUE(program.open(QFile::WriteOnly));
    program.write("#!/bin/sh\necho \"$@\" >" + record.fileName().toUtf8());
    program.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    program.close();
    qputenv("PATH", folder.path().toUtf8());
    DesktopSystemSettings settings;
    QSignalSpy advised(&settings, &SystemSettings::cannotOpen);
    for (const char* desktop : {"X-Unknown", "KDE", "ubuntu:GNOME"}) { // KDE's program is not there
        qputenv("XDG_CURRENT_DESKTOP", desktop);
        settings.openLocationSettings();
    }
    EXPECT_TRUE(eventually([&] { return record.size() > 0 && record.open(QFile::ReadOnly); }));
    EXPECT_EQ(record.readAll(), "location\n");
    EXPECT_EQ(advised.size(), 2);
    EXPECT_FALSE(advised.value(0).value(0).toString().isEmpty());
}
