// SPDX-License-Identifier: GPL-3.0-or-later
#include "DaysPerWeekGoalView.h"
#include "GeneralSettingsView.h"
#include "IconButton.h"
#include "NetworkList.h"
#include "NetworkName.h"
#include "SsidSettingsView.h"
#include "Switch.h"
#include "ViewTest.h"

#include <QLineEdit>
#include <QSignalSpy>

class SettingsTest : public ViewTest {
protected:
    static QLineEdit& field(const QWidget& view, const char* name)
    {
        return *view.findChild<QLineEdit*>(QString::fromLatin1(name));
    }
    /// Types into a field in the place of what stands in it.
    static void type(QLineEdit& field, const QString& text)
    {
        field.setFocus();
        field.selectAll();
        QTest::keyClick(&field, Qt::Key_Delete);
        QTest::keyClicks(&field, text);
    }
    static QAbstractButton& button(const QWidget& view, const char* name)
    {
        return *view.findChild<QAbstractButton*>(QString::fromLatin1(name));
    }
    static QStringList namesOf(const QWidget& view)
    {
        QStringList names;
        for (const auto* each : view.findChildren<IconButton*>()) {
            if (each->isVisible())
                names.append(each->accessibleName());
        }
        return names;
    }
    [[nodiscard]] QStringList goals() const
    {
        QStringList texts;
        for (const auto& goal : settings->daysPerWeekGoals.value())
            texts.append(goal->wantedDaysPerWeek.value() + u'|' + goal->desc);
        return texts;
    }
};

TEST_F(SettingsTest, aGoalIsAddedByReturnAndByTheButton)
{
    DaysPerWeekGoalView view(*settings, true);
    show(view);
    auto& entry = field(view, "stringValue");
    const QString refused = u"Input must be a number between 0.0 and 7.0"_s;
    const QStringList before{u"2.00|not fired"_s, u"4.00|ideal"_s}, three{before[0], u"3.00|"_s, before[1]};
    QStringList four = three;
    four.insert(1, u"2.50|"_s);
    struct Row {
        QString typed;
        bool isReturn;
        QStringList goals;
        QString left;
        bool isRefused;
    };
    const Row rows[]{{u"8"_s, true, before, u"8"_s, true},        {u"3"_s, true, three, {}, false},
                     {u"abc"_s, false, three, u"abc"_s, true},    {u"3.0"_s, true, three, {}, false},
                     {u"0"_s, true, three, u"0"_s, true},         {u"2.5"_s, false, four, u"2.5"_s, false},
                     {u"2.501"_s, false, four, u"2.501"_s, false}};
    for (const auto& [typed, isReturn, expected, left, isRefused] : rows) {
        type(entry, typed);
        if (isReturn)
            QTest::keyClick(&entry, Qt::Key_Return);
        else
            click(button(view, "addGoal"));
        EXPECT_EQ(goals(), expected) << qPrintable(typed);
        EXPECT_EQ(entry.text(), left);
        EXPECT_EQ(shownTexts(view).contains(refused), isRefused) << qPrintable(typed);
    }
    EXPECT_EQ(context.fetchGoals().size(), 4);
    settings->daysPerWeekGoals = AppSettings::Goals();
    EXPECT_TRUE(shownTexts(view).contains(u"No \"days in office per week\" goals"_s));
}

TEST_F(SettingsTest, aGoalIsEditedInItsPlaceAndRemoved)
{
    DaysPerWeekGoalView view(*settings, false);
    show(view);
    const auto fields = view.findChildren<QLineEdit*>();
    auto* days = *std::ranges::find(fields, u"2.00"_s, &QLineEdit::text);
    auto* description = *std::ranges::find(fields, u"ideal"_s, &QLineEdit::text);
    const QString refused = u"Days Per Week must be a number between 0.0 and 7.0"_s;
    type(*days, u"1.5"_s);
    type(*description, u"all"_s);
    EXPECT_EQ(goals(), (QStringList{u"1.50|not fired"_s, u"4.00|all"_s}));
    EXPECT_EQ(days->text(), u"1.50"_s); // it was left
    type(*days, u"9"_s);
    EXPECT_EQ(days->text(), u"9"_s);
    EXPECT_TRUE(shownTexts(view).contains(refused));
    description->setFocus();
    EXPECT_EQ(days->text(), u"1.50"_s);
    type(*days, u"7"_s);
    EXPECT_FALSE(shownTexts(view).contains(refused));
    description->setFocus();
    EXPECT_EQ(goals().first(), u"7.00|not fired"_s); // only an addition sorts
    EXPECT_EQ(namesOf(view), (QStringList{u"Add Goal"_s, u"Remove the goal 7.00"_s, u"Remove the goal 4.00"_s}));
    type(*description, u"all of it"_s); // and what is being typed stays when another goal goes
    const auto buttons = view.findChildren<IconButton*>();
    const auto removal = *std::ranges::find(buttons, u"Remove the goal 7.00"_s, &QWidget::accessibleName);
    removal->setFocus();
    QTest::keyClick(removal, Qt::Key_Space);
    EXPECT_EQ(goals(), QStringList(u"4.00|all of it"_s));
    EXPECT_EQ(view.focusWidget()->accessibleName(), u"Remove the goal 4.00"_s);
}

TEST_F(SettingsTest, networksComeFromAScanAndByName)
{
    wifiClient.networks = {{u"office"_s}, {u"Office"_s}, {std::nullopt}, {u"Office"_s}};
    settings->inOfficeSsids = {u"Home"_s, u"Office"_s, u"Home"_s};
    wifiClient.isHeld = true;
    SsidSettingsView view(parts, true);
    show(view);
    auto& scan = dynamic_cast<QAbstractButton&>(button(view, "scan"));
    EXPECT_TRUE(shownTexts(view).contains(u"Scanning for networks..."_s));
    EXPECT_EQ(scan.text(), u"Scanning..."_s);
    EXPECT_FALSE(scan.isEnabled());
    wifiClient.isHeld = false;
    for (int answers = 0; answers < 3; ++answers) // to the monitor, and to both questions of the scan
        Q_EMIT wifiClient.letGo();
    EXPECT_TRUE(eventually([&] { return scan.isEnabled(); }));
    view.hide();
    view.show();
    EXPECT_EQ(wifiClient.scans.size(), 1); // the first time only
    const auto& inRange = *view.findChild<NetworkList*>(u"networksInRange"_s);
    const auto shown = [](const char* text, const char* name) {
        return QString::fromUtf8(text).arg(shownNetworkName(QString::fromUtf8(name)));
    };
    const QStringList offers{shown("%1 is an office network", "Office"), shown("Add %1", "office")};
    EXPECT_TRUE(eventually([&] { return namesOf(inRange) == offers; }));
    click(*inRange.findChildren<IconButton*>().last());
    EXPECT_EQ(settings->inOfficeSsids, (QStringList{u"Home"_s, u"Office"_s, u"Home"_s, u"office"_s}));
    click(*view.findChild<NetworkList*>(u"selectedNetworks"_s)->findChild<IconButton*>());
    EXPECT_EQ(settings->inOfficeSsids, (QStringList{u"Office"_s, u"office"_s}));
    auto& custom = field(view, "customNetwork");
    type(custom, u"Guest "_s);
    click(button(view, "addCustomNetwork"));
    EXPECT_EQ(custom.text(), u"Guest "_s);
    QTest::keyClick(&custom, Qt::Key_Return);
    EXPECT_EQ(custom.text(), QString());
    click(button(view, "addCustomNetwork"));
    EXPECT_EQ(settings->inOfficeSsids, (QStringList{u"Office"_s, u"office"_s, u"Guest "_s, u"Guest "_s, {}}));
    EXPECT_TRUE(shownTexts(view).contains(u"(empty name)"_s));
    settings->inOfficeSsids = QStringList(u"<b>bold</b>"_s);
    const QString help = view.findChild<NetworkList*>(u"selectedNetworks"_s)->findChild<IconButton*>()->toolTip();
    EXPECT_TRUE(help.contains(u"&lt;b&gt;bold"_s)) << "no name is markup";
    wifiClient.failure = u"busy"_s;
    wifiClient.isHeld = true;
    scan.setFocus();
    QTest::keyClick(&scan, Qt::Key_Space);
    EXPECT_EQ(view.window()->focusWidget(), &view) << "and no button that a second key would press";
    wifiClient.isHeld = false;
    Q_EMIT wifiClient.letGo();
    EXPECT_TRUE(eventually([&] { return shownTexts(view).contains(u"No networks found"_s); }));
    settings->inOfficeSsids = QStringList();
    EXPECT_TRUE(shownTexts(view).contains(u"No networks selected"_s));
}

TEST_F(SettingsTest, whatTrackingLacksIsSaid)
{
    struct Row {
        bool isTracking;
        bool isOn;
        int permission;
        int warnings;
        bool canScan;
    };
    const Row rows[]{{true, true, 3, 0, true},   {true, false, 3, 2, true},   {true, true, 2, 1, false},
                     {true, false, 4, 3, false}, {false, false, 0, 0, false}, {false, true, 3, 0, true}};
    SsidSettingsView view(parts, false);
    show(view);
    EXPECT_FALSE(shownTexts(view).contains(u"Automatic In Office Tracking"_s));
    for (const Row& row : rows) {
        settings->wifiTrackingEnabled = row.isTracking;
        EXPECT_EQ(view.findChild<Switch*>()->isChecked(), row.isTracking);
        wifiClient.interface->powerOn = row.isOn;
        Q_EMIT wifiClient.powerStateDidChange(u"wlan0"_s);
        authorization.change(AuthorizationStatus(row.permission));
        QCoreApplication::processEvents();
        EXPECT_EQ(shownTexts(view).filter(u"turned off"_s).size() +
                      shownTexts(view).filter(u"to allow tracking"_s).size(),
                  row.warnings);
        EXPECT_EQ(button(view, "scan").isEnabled(), row.canScan);
    }
    auto& minutes = field(view, "checkEveryInMinutes");
    for (const auto& [typed, kept] : {std::pair(u"45"_s, 45),
                                      {u"1440"_s, 1440},
                                      {u"1441"_s, 1440},
                                      {u"0"_s, 1440},
                                      {u""_s, 1440},
                                      {u"7.5"_s, 1440},
                                      {u"1"_s, 1}}) {
        type(minutes, typed);
        view.findChild<Switch*>()->setFocus();
        EXPECT_EQ(settings->checkEveryInMinutes, kept) << qPrintable(typed);
        EXPECT_EQ(minutes.text(), QString::number(kept));
    }
}

TEST(NetworkNameTest, showsWhatCannotBeSeenAndKeepsToItself)
{
    for (const auto& [ssid, shown] : {std::pair(u"Büro 3"_s, u"Büro 3"_s),
                                      {u" x "_s, u"\u2423x\u2423"_s},
                                      {u"a\tb\u202ec\u0001"_s, u"a\ufffdb\ufffdc\ufffd"_s}})
        EXPECT_EQ(shownNetworkName(ssid), u'\u2068' + shown + u'\u2069');
}

TEST_F(SettingsTest, generalSwitchesAreTheRecordsAndTheSystems)
{
    GeneralSettingsView view(parts, false);
    show(view);
    const auto switches = view.findChildren<Switch*>();
    auto* login = view.findChild<Switch*>(u"launchAtLogin"_s);
    for (const bool on : {true, false}) {
        click(*login);
        EXPECT_EQ(loginItem.enabled, on);
        click(*switches.at(1));
        EXPECT_EQ(settings->notificationsEnabled, !on);
        settings->vacationDaysCountAsInOffice = on;
        EXPECT_EQ(switches.at(2)->isChecked(), on);
    }
    loginItem.isBroken = true;
    click(*login);
    EXPECT_TRUE(eventually([&] { return !login->isChecked(); })) << "it shows what is, not what was wished";
    const QSignalSpy again(&view, &GeneralSettingsView::welcomeRequested);
    click(button(view, "welcome"));
    EXPECT_EQ(again.size(), 1);
    EXPECT_EQ(GeneralSettingsView(parts, true).findChild<QWidget*>(u"welcome"_s), nullptr);
}
