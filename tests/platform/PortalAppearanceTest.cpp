// SPDX-License-Identifier: GPL-3.0-or-later
#include "PortalAppearance.h"
#include "PrivateBuses.h"

#include <QDBusPendingCallWatcher>

class PortalAppearanceTest : public testing::Test {
protected:
    PortalAppearanceTest()
    {
        QObject::connect(&appearance, &Appearance::colorSchemeReported, &appearance,
                         [this](ColorScheme scheme) { reported.append(scheme); });
    }

    /// Starts, and waits until the answer, whatever it is, has been dealt with. What was reported then.
    QList<ColorScheme> heardAtStart()
    {
        appearance.start();
        EXPECT_TRUE(eventually([&] { return appearance.findChild<QDBusPendingCallWatcher*>() == nullptr; }));
        return std::exchange(reported, {});
    }

    const QString interface = u"org.freedesktop.portal.Settings"_s;
    const QString group = u"org.freedesktop.appearance"_s, key = u"color-scheme"_s;
    PlayedService desktop{QDBusConnection::sessionBus(), u"org.freedesktop.portal.Desktop"_s,
                          u"/org/freedesktop/portal/desktop"_s};
    QList<ColorScheme> reported;
    PortalAppearance appearance;
};

TEST_F(PortalAppearanceTest, readsTheSchemeAndFollowsItsChangesAndNothingElse)
{
    using enum ColorScheme;
    EXPECT_EQ(heardAtStart(), QList<ColorScheme>()); // there is no desktop yet
    desktop.startMock({desktop.name, desktop.path, interface});
    const std::pair<const char*, QList<ColorScheme>> rows[]{
        {"UInt32(0", {Light}}, {"UInt32(1", {Dark}}, {"UInt32(2", {Light}}, {"String('dark'", {}}};
    for (const auto& [setting, schemes] : rows) {
        const auto code = u"ret = {('%1', '%2'): dbus.%3, variant_level=2)}[tuple(args)]"_s;
        desktop.tell("AddMethod", interface, u"Read"_s, u"ss"_s, u"v"_s,
                     code.arg(group, key, QString::fromLatin1(setting)));
        EXPECT_EQ(heardAtStart(), schemes) << setting;
    }
    const std::tuple<QString, QString, QVariant> changes[]{{group, u"accent-color"_s, 1U},
                                                           {u"org.gnome.desktop.interface"_s, key, 1U},
                                                           {group, key, u"dark"_s},
                                                           {group, key, 1U},
                                                           {group, key, 2U}};
    for (const auto& [ofGroup, ofKey, to] : changes) {
        desktop.tell("EmitSignal", interface, u"SettingChanged"_s, u"ssv"_s, QVariantList{ofGroup, ofKey, to});
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(reported, QList({Dark, Light}));
}
