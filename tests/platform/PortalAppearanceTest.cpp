// SPDX-License-Identifier: GPL-3.0-or-later
#include "PortalAppearance.h"
#include "PrivateBuses.h"

#include <QDBusPendingCallWatcher>

TEST(PortalAppearanceTest, readsAndFollowsTheColorSchemeOnly)
{
    using enum ColorScheme;
    const QString interface = u"org.freedesktop.portal.Settings"_s;
    const QString group = u"org.freedesktop.appearance"_s, key = u"color-scheme"_s;
    MockService desktop{QDBusConnection::sessionBus(), u"org.freedesktop.portal.Desktop"_s,
                        u"/org/freedesktop/portal/desktop"_s};
    PortalAppearance appearance;
    QList<ColorScheme> reported;
    QObject::connect(&appearance, &Appearance::colorSchemeReported, &appearance,
                     [&](ColorScheme scheme) { reported.append(scheme); });
    const auto start = [&] {
        appearance.start();
        EXPECT_TRUE(eventually([&] { return appearance.findChild<QDBusPendingCallWatcher*>() == nullptr; }));
    };
    start(); // there is no desktop yet
    desktop.startMock({desktop.name, desktop.path, interface});
    for (const char* setting : {"UInt32(0", "UInt32(1", "UInt32(2", "String('dark'"}) {
        const auto code = u"ret = {('%1', '%2'): dbus.%3, variant_level=2)}[tuple(args)]"_s;
        desktop.answer(interface, "Read", "ss", "v", code.arg(group, key, QLatin1StringView(setting)).toLatin1());
        start();
    }
    EXPECT_EQ(std::exchange(reported, {}), QList({Light, Dark, Light}));
    for (const auto& [ofGroup, ofKey, value] : {std::tuple(group, u"accent-color"_s, QVariant(1U)),
                                                {u"org.gnome.desktop.interface"_s, key, 1U},
                                                {group, key, u"dark"_s},
                                                {group, key, 1U},
                                                {group, key, 2U}})
        desktop.emitSignal(interface, "SettingChanged", "ssv", {ofGroup, ofKey, value});
    EXPECT_EQ(reported, QList({Dark, Light}));
}
