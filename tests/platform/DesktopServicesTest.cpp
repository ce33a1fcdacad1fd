// SPDX-License-Identifier: GPL-3.0-or-later
#include "DesktopSystemSettings.h"
#include "FreedesktopNotifier.h"
#include "PrivateBuses.h"

#include <QDBusPendingCallWatcher>
#include <QSignalSpy>

using namespace std::chrono_literals;

class FreedesktopNotifierTest : public testing::Test {
protected:
    void startServer(const QString& capability)
    {
        server.startMock(
            {u"-p"_s, u"{\"capabilities\": \"body %1\"}"_s.arg(capability), u"-t"_s, u"notification_daemon"_s});
    }
    /// The arguments of Notify when this is posted.
    QVariantList sentBy(FreedesktopNotifier& sender, const Notification& notification)
    {
        server.tell("ClearCalls");
        sender.post(notification);
        QList<std::pair<quint64, QVariantList>> calls;
        EXPECT_TRUE(eventually([&] {
            calls = qdbus_cast<decltype(calls)>(server.tell("GetMethodCalls", "Notify"));
            return !calls.isEmpty();
        }));
        return calls.value(0).second;
    }
    QVariantList sent(const Notification& notification) { return sentBy(notifier, notification); }

    MockService server{QDBusConnection::sessionBus(), u"org.freedesktop.Notifications"_s,
                       u"/org/freedesktop/Notifications"_s};
    FreedesktopNotifier notifier;
};

TEST_F(FreedesktopNotifierTest, sendsWhatTheServerCanShow)
{
    notifier.post({u"Nobody is there"_s, {}, u"a"_s});
    QCoreApplication::processEvents();
    const auto application = u"io.github.pellory.Pellory"_s;
    for (const auto& [capability, body] :
         {std::pair(u""_s, u"<b> & \"B\""_s), {u"body-markup"_s, u"&lt;b&gt; &amp; &quot;B&quot;"_s}}) {
        startServer(capability);
        QVariantList all = sent({u"A & B"_s, u"<b> & \"B\""_s, {}});
        const auto hints = qdbus_cast<QVariantMap>(all.takeAt(6));
        EXPECT_EQ(all, (QVariantList{u"Pellory"_s, 0U, application, u"A & B"_s, body, QStringList(), -1}));
        const auto sound = u"message-new-instant"_s;
        EXPECT_EQ(hints, (QVariantMap{{u"desktop-entry"_s, application}, {u"sound-name"_s, sound}, {u"urgency"_s, 1}}));
        EXPECT_EQ(hints[u"urgency"_s].typeId(), QMetaType::UChar); // equal to all numbers, but servers read no other
        // In the second round these are the numbers of a server that knows nothing of the first round.
        for (const auto& [topic, replaced] :
             {std::pair(u"a"_s, 0), {u"a"_s, 2}, {u"b"_s, 0}, {u"a"_s, 2}, {u"b"_s, 3}, {QString(), 0}})
            EXPECT_EQ(sent({u"Title"_s, {}, topic}).at(1), replaced) << qPrintable(topic);
        server.stop();
    }
}

TEST_F(FreedesktopNotifierTest, leadsToTheDayOfANotificationOnScreen)
{
    QString opened;
    QObject::connect(&notifier, &Notifier::activated, &notifier,
                     [&](QDate day, const QString& token) { opened += day.toString(u"d"_s) + u'.' + token; });
    startServer(u"actions"_s);
    for (int number = 1; number <= 22; ++number) // more than are remembered
        EXPECT_EQ(sent({{}, {}, {}, QDate(2026, 11, number)}).value(5), QStringList({u"default"_s, u"Open"_s}));
    sent({}); // so the replies to the others have been read
    for (const auto& [signal, number, text, day] : {std::tuple("ActionInvoked", 1U, "default", ""),
                                                    {"ActionInvoked", 99U, "default", ""},
                                                    {"ActivationToken", 7U, "token", ""},
                                                    {"ActionInvoked", 8U, "default", "8."},
                                                    {"ActionInvoked", 9U, "settings", ""},
                                                    {"ActivationToken", 9U, "token", ""},
                                                    {"ActionInvoked", 9U, "default", "9.token"},
                                                    {"NotificationClosed", 10U, nullptr, ""},
                                                    {"ActionInvoked", 10U, "default", ""}}) {
        server.emitSignal(server.name, signal, text ? "us" : "uu",
                          {number, text ? QVariant(QLatin1StringView(text)) : 2U});
        EXPECT_EQ(std::exchange(opened, {}), QLatin1StringView(day)) << signal << number;
    }
}

TEST_F(FreedesktopNotifierTest, carriesOnAfterAServerThatHangsOrTalksNonsense)
{
    FreedesktopNotifier impatient(3s);
    startServer({});
    server.suspend();
    impatient.post({});
    EXPECT_TRUE(eventually([&] { return impatient.findChild<QDBusPendingCallWatcher*>() != nullptr; }));
    EXPECT_TRUE(eventually([&] { return impatient.findChild<QDBusPendingCallWatcher*>() == nullptr; }));
    server.stop();
    startServer({});
    EXPECT_FALSE(sentBy(impatient, {}).isEmpty());
    for (const auto& [signature, code] : nonsense) {
        FreedesktopNotifier fresh;
        if (!QByteArrayView(code).startsWith("raise")) // which is no server to notify
            server.answer(server.name, "GetCapabilities", "", signature, code);
        server.answer(server.name, "Notify", "susssasa{sv}i", signature, code);
        for (int time = 0; time < 2; ++time)
            EXPECT_FALSE(sentBy(fresh, {{}, {}, u"topic"_s}).isEmpty()) << code;
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
