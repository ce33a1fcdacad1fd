// SPDX-License-Identifier: GPL-3.0-or-later
#include "PortalAppearance.h"
#include "PrivateBuses.h"

#include <QDBusPendingCallWatcher>

TEST(PortalAppearanceTest, readsAndFollowsTheColorSchemeOnly)
{
    const QString interface = u"org.freedesktop.portal.Settings"_s, group = u"org.freedesktop.appearance"_s;
    const QString key = u"color-scheme"_s;
    MockService desktop{QDBusConnection::sessionBus(), u"org.freedesktop.portal.Desktop"_s,
                        u"/org/freedesktop/portal/desktop"_s};
    desktop.startMock({desktop.name, desktop.path, interface});
    PortalAppearance appearance;
    QString reported;
    QObject::connect(&appearance, &Appearance::colorSchemeReported, &appearance,
                     [&](ColorScheme scheme) { reported += scheme == ColorScheme::Dark ? u'd' : u'l'; });
    for (const char* setting : {"UInt32(0", "UInt32(1", "UInt32(2", "String('dark'"}) {
        const auto code = u"ret = {('%1', '%2'): dbus.%3, variant_level=2)}[tuple(args)]"_s;
        desktop.answer(interface, "Read", "ss", "v", code.arg(group, key, QLatin1StringView(setting)).toLatin1());
        appearance.start();
        EXPECT_TRUE(eventually([&] { return appearance.findChild<QDBusPendingCallWatcher*>() == nullptr; }));
    }
    for (const auto& [changed, value] :
         {std::pair(u"accent-color"_s, QVariant(1U)), {key, u"dark"_s}, {key, 1U}, {key, 2U}})
        desktop.emitSignal(interface, "SettingChanged", "ssv", {group, changed, value});
    EXPECT_EQ(reported, u"ldldl"_s);
}
