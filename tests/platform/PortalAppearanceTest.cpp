// SPDX-License-Identifier: GPL-3.0-or-later
#include "PortalAppearance.h"
#include "Daemon.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QTest>

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

namespace {

const auto service = u"org.freedesktop.portal.Desktop"_s;
const auto path = u"/org/freedesktop/portal/desktop"_s;
const auto interface = u"org.freedesktop.portal.Settings"_s;
const auto group = u"org.freedesktop.appearance"_s;
const auto key = u"color-scheme"_s;

QVariant wrapped(const QVariant& value)
{
    return QVariant::fromValue(QDBusVariant(value));
}

/// A desktop with one setting.
class Desktop : public QDBusVirtualObject {
public:
    [[nodiscard]] QString introspect(const QString& /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        if (message.interface() == interface && message.member() == u"Read"_s &&
            message.arguments() == QVariantList{group, key})
            return connection.send(message.createReply(wrapped(wrapped(setting))));
        return connection.send(message.createErrorReply(QDBusError::InvalidArgs, u"no such setting"_s));
    }

    QVariant setting;
};

} // namespace

/// A bus of its own, on which a second connection plays the desktop.
class PortalAppearanceTest : public testing::Test {
protected:
    // A process is connected to one session bus for all its life.
    static void SetUpTestSuite() // NOLINT(readability-identifier-naming)
    {
        bus = std::make_unique<Daemon>(u"dbus-daemon"_s,
                                       QStringList{u"--session"_s, u"--print-address"_s, u"--nofork"_s});
        qputenv("DBUS_SESSION_BUS_ADDRESS", bus->firstLine());
    }
    static void TearDownTestSuite() { bus.reset(); } // NOLINT(readability-identifier-naming)

    PortalAppearanceTest()
    {
        QObject::connect(&appearance, &Appearance::colorSchemeReported, &appearance,
                         [this](ColorScheme scheme) { reported.push_back(scheme); });
    }
    ~PortalAppearanceTest() override { QDBusConnection::disconnectFromBus(connection.name()); }

    void offer(const QVariant& setting)
    {
        desktop.setting = setting;
        ASSERT_TRUE(connection.registerVirtualObject(path, &desktop) && connection.registerService(service));
    }

    void tellChange(const QString& ofGroup, const QString& ofKey, const QVariant& value)
    {
        auto signal = QDBusMessage::createSignal(path, interface, u"SettingChanged"_s);
        ASSERT_TRUE(connection.send(signal << ofGroup << ofKey << wrapped(value)));
    }

    /// Starts, and waits until the answer, whatever it is, has been dealt with.
    void startAndHear()
    {
        appearance.start();
        ASSERT_TRUE(
            QTest::qWaitFor([&] { return appearance.findChild<QDBusPendingCallWatcher*>() == nullptr; }, 30'000));
    }

    inline static std::unique_ptr<Daemon> bus;
    QDBusConnection connection =
        QDBusConnection::connectToBus(qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"), u"desktop"_s);
    Desktop desktop;
    std::vector<ColorScheme> reported;
    PortalAppearance appearance;
};

TEST_F(PortalAppearanceTest, readsTheSchemeAtTheStart)
{
    offer({});
    const std::pair<QVariant, std::vector<ColorScheme>> rows[]{
        {0U, {ColorScheme::Light}}, {1U, {ColorScheme::Dark}}, {2U, {ColorScheme::Light}}, {u"dark"_s, {}}};
    for (const auto& [setting, schemes] : rows) {
        desktop.setting = setting;
        reported.clear();
        startAndHear();
        EXPECT_EQ(reported, schemes) << setting.toString().toStdString();
    }
}

TEST_F(PortalAppearanceTest, followsChangesOfTheSchemeAndOfNothingElse)
{
    startAndHear();
    EXPECT_TRUE(reported.empty()); // there is no desktop yet
    offer(0U);
    tellChange(group, u"accent-color"_s, 1U);
    tellChange(u"org.gnome.desktop.interface"_s, key, 1U);
    tellChange(group, key, u"dark"_s);
    tellChange(group, key, 1U);
    tellChange(group, key, 2U);
    EXPECT_TRUE(QTest::qWaitFor([&] { return reported.size() >= 2; }, 10'000));
    EXPECT_EQ(reported, std::vector({ColorScheme::Dark, ColorScheme::Light}));
}

TEST_F(PortalAppearanceTest, withoutABusNothingHappens)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe"); // in a process that has not met the bus
    const auto startWithoutBus = [&] {
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent");
        appearance.start();
        QCoreApplication::processEvents();
        std::_Exit(reported.empty() ? EXIT_SUCCESS : EXIT_FAILURE);
    };
    EXPECT_EXIT(startWithoutBus(), testing::ExitedWithCode(EXIT_SUCCESS), "");
}
