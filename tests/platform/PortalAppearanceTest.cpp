// SPDX-License-Identifier: GPL-3.0-or-later
#include "PortalAppearance.h"
#include "PrivateBuses.h"

#include <QDBusPendingCallWatcher>

TEST(PortalAppearanceTest, readsAndFollowsThePreferencesOnly)
{
    const QString interface = u"org.freedesktop.portal.Settings"_s, common = u"org.freedesktop.appearance"_s;
    const QString gnome = u"org.gnome.desktop.interface"_s, scheme = u"color-scheme"_s, contrast = u"contrast"_s;
    MockService desktop{QDBusConnection::sessionBus(), u"org.freedesktop.portal.Desktop"_s,
                        u"/org/freedesktop/portal/desktop"_s};
    desktop.startMock({desktop.name, desktop.path, interface});
    PortalAppearance appearance;
    QString reported;
    QObject::connect(&appearance, &Appearance::colorSchemeReported, &appearance,
                     [&](ColorScheme now) { reported += now == ColorScheme::Dark ? u'd' : u'l'; });
    QObject::connect(&appearance, &Appearance::contrastReported, &appearance,
                     [&](Contrast now) { reported += now == Contrast::High ? u'h' : u'n'; });
    QObject::connect(&appearance, &Appearance::reducedMotionReported, &appearance,
                     [&](bool isReduced) { reported += isReduced ? u's' : u'm'; });
    for (const char* values :
         {"", "'org.freedesktop.appearance': {'color-scheme': 'dark', 'accent-color': 1}",
          "'org.freedesktop.appearance': {'color-scheme': dbus.UInt32(0)}",
          "'org.freedesktop.appearance': {'color-scheme': dbus.UInt32(1), 'contrast': dbus.UInt32(0),"
          "'reduced-motion': dbus.UInt32(1)}, 'org.gnome.desktop.a11y.interface': {'high-contrast': True}",
          "'org.gnome.desktop.a11y.interface': {'high-contrast': False}"}) {
        desktop.answer(interface, "ReadAll", "as", "a{sa{sv}}",
                       u"ret = dbus.Dictionary({%1}, signature='sa{sv}')"_s.arg(QLatin1StringView(values)).toLatin1());
        appearance.start();
        EXPECT_TRUE(eventually([&] { return appearance.findChild<QDBusPendingCallWatcher*>() == nullptr; }));
        reported += u' ';
    }
    EXPECT_EQ(reported, u"  l dhs dns "_s);
    reported.clear();
    for (const auto& [group, changed, value] :
         QList<std::tuple<QString, QString, QVariant>>{{common, u"accent-color"_s, 1U},
                                                       {gnome, u"clock-format"_s, u"12h"_s},
                                                       {common, scheme, u"light"_s},
                                                       {common, scheme, 2U},
                                                       {common, contrast, 1U},
                                                       {common, u"reduced-motion"_s, 0U},
                                                       {gnome, u"enable-animations"_s, false}}) {
        desktop.emitSignal(interface, "SettingChanged", "ssv", {group, changed, value});
        reported += u' ';
    }
    EXPECT_EQ(reported, u"  dns lns lhs lhm lhs "_s);
}
