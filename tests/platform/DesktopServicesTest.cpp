// SPDX-License-Identifier: GPL-3.0-or-later
#include "DesktopSystemSettings.h"
#include "FreedesktopNotifier.h"
#include "PrivateBuses.h"

#include <QSignalSpy>

class FreedesktopNotifierTest : public testing::Test {
protected:
    void startServer(const QString& capability)
    {
        server.startMock(
            {u"-p"_s, u"{\"capabilities\": \"body %1\"}"_s.arg(capability), u"-t"_s, u"notification_daemon"_s});
    }
    /// The arguments of Notify when this is posted.
    QVariantList sent(const Notification& notification)
    {
        server.tell("ClearCalls");
        notifier.post(notification);
        return called("Notify");
    }
    /// The arguments with which a method is called.
    QVariantList called(const char* method)
    {
        QList<std::pair<quint64, QVariantList>> calls;
        EXPECT_TRUE(eventually([&] {
            calls = qdbus_cast<decltype(calls)>(server.tell("GetMethodCalls", method));
            return !calls.isEmpty();
        }));
        return calls.value(0).second;
    }

    MockService server{QDBusConnection::sessionBus(), u"org.freedesktop.Notifications"_s,
                       u"/org/freedesktop/Notifications"_s};
    FreedesktopNotifier notifier;
};

TEST_F(FreedesktopNotifierTest, sendsWhatTheServerCanShowAndLeadsToItsDay)
{
    QString opened;
    QObject::connect(&notifier, &Notifier::activated, &notifier,
                     [&](QDate day, const QString& token) { opened += day.toString(u"d"_s) + u'.' + token + u' '; });
    QObject::connect(&notifier, &Notifier::undoRequested, &notifier,
                     [&](qint64 group) { opened += u"undo %1 "_s.arg(group); });
    const auto application = u"io.github.pellory.Pellory"_s, text = u"<b> & \"B\""_s;
    for (const auto& [capability, body, actions] : {std::tuple(u""_s, text, QStringList()),
                                                    {u"body-markup actions"_s,
                                                     u"&lt;b&gt; &amp; &quot;B&quot;"_s,
                                                     {u"default"_s, u"Open"_s, u"undo"_s, u"Undo"_s}}}) {
        startServer(capability);
        QVariantList all = sent({u"A & B"_s, text, {}, {2026, 11, 1}, 5});
        const auto hints = qdbus_cast<QVariantMap>(all.takeAt(6));
        EXPECT_EQ(all, (QVariantList{u"Pellory"_s, 0U, application, u"A & B"_s, body, actions, -1}));
        EXPECT_EQ(hints, (QVariantMap{{u"desktop-entry"_s, application},
                                      {u"sound-name"_s, u"message-new-instant"_s},
                                      {u"urgency"_s, 1}}));
        EXPECT_EQ(hints[u"urgency"_s].typeId(), QMetaType::UChar); // equal to all numbers, but servers read no other
        // In the second round these are the numbers of a server that knows nothing of the first round.
        for (const auto& [topic, replaced] : {std::pair(u"a"_s, 0), {u"b"_s, 0}, {u"a"_s, 2}, {QString(), 0}})
            EXPECT_EQ(sent({u"Title"_s, {}, topic, {2026, 11, 2}}).at(1), replaced) << qPrintable(topic);
        for (const auto& [signal, number, argument] : {std::tuple("ActivationToken", 7U, "token"),
                                                       {"ActionInvoked", 7U, "default"},
                                                       {"ActionInvoked", 1U, "default"},
                                                       {"ActionInvoked", 1U, "undo"},
                                                       {"ActionInvoked", 2U, "undo"},
                                                       {"ActionInvoked", 2U, "settings"},
                                                       {"ActivationToken", 2U, "token"},
                                                       {"ActionInvoked", 2U, "default"}})
            server.emitSignal(server.name, signal, "us", {number, QLatin1StringView(argument)});
        EXPECT_EQ(std::exchange(opened, {}), u"1. undo 5 2.token "_s);
        notifier.withdrawChanges(6);
        notifier.withdrawChanges(5);
        EXPECT_EQ(called("CloseNotification"), QVariantList{1U});
        server.tell("ClearCalls");
        notifier.withdraw(u"b"_s);
        EXPECT_EQ(called("CloseNotification"), QVariantList{3U});
        EXPECT_EQ(sent({{}, {}, u"b"_s}).at(1), 0);
        server.stop();
    }
}

TEST_F(FreedesktopNotifierTest, carriesOnAfterAServerThatTalksNonsense)
{
    startServer({});
    for (const auto& [signature, code] :
         {std::pair("", ""), {"s", "ret = 'x'"}, {"a(ss)", "ret = [('a', 'b')] * 100000"}, {"s", "raise ValueError"}}) {
        server.answer(server.name, "Notify", "susssasa{sv}i", signature, code);
        EXPECT_FALSE(sent({{}, {}, u"topic"_s}).isEmpty()) << code;
    }
}

TEST(DesktopSystemSettingsTest, opensThePageOrSaysWhatElseCanBeDone)
{
    const QTemporaryDir folder;
    const auto restore = qScopeGuard([path = qgetenv("PATH")] { qputenv("PATH", path); });
    const QString program = folder.filePath(u"gnome-control-center"_s);
    ASSERT_TRUE(QFile::link(u"/bin/mkdir"_s, program)); // which then makes a folder named after the page
    qputenv("PATH", folder.path().toUtf8());
    QDir::setCurrent(folder.path());
    DesktopSystemSettings settings;
    QSignalSpy advised(&settings, &SystemSettings::cannotOpen);
    for (const char* desktop : {"X-Unknown", "KDE", "ubuntu:GNOME"}) { // KDE's program is not there
        qputenv("XDG_CURRENT_DESKTOP", desktop);
        settings.openLocationSettings();
    }
    EXPECT_TRUE(eventually([&] { return QDir(folder.filePath(u"location"_s)).exists(); }));
    EXPECT_EQ(advised.size(), 2);
}
