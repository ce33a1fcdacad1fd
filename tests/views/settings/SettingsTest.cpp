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
#include <QRegularExpression>
#include <QSignalSpy>

class SettingsTest : public ViewTest {
protected:
    static QLineEdit& field(const QWidget& view, const char* name) { return named<QLineEdit>(view, name); }
    /// Types into a field in the place of what stands in it.
    static void type(QLineEdit& field, const QString& text)
    {
        field.setFocus();
        field.selectAll();
        QTest::keyClick(&field, Qt::Key_Delete);
        QTest::keyClicks(&field, text);
    }
    static QAbstractButton& button(const QWidget& view, const char* name) { return named<QAbstractButton>(view, name); }
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
    const QStringList before{u"2.00|not fired"_s, u"4.00|ideal"_s}, three{before[0], u"3.00|"_s, before[1]},
        four{before[0], u"2.50|"_s, u"3.00|"_s, before[1]};
    // What is typed, whether with Return, what comes of it, and whether it is refused.
    const std::tuple<QString, bool, QStringList, bool> rows[]{
        {u"8"_s, true, before, true},   {u"3"_s, true, three, false},   {u"abc"_s, false, three, true},
        {u"3.0"_s, true, three, false}, {u"2.5"_s, false, four, false}, {u"2.501"_s, false, four, false}};
    for (const auto& [typed, isReturn, expected, isRefused] : rows) {
        type(entry, typed);
        isReturn ? QTest::keyClick(&entry, Qt::Key_Return) : click(button(view, "addGoal"));
        EXPECT_EQ(goals(), expected) << qPrintable(typed);
        EXPECT_EQ(entry.text(), isReturn && !isRefused ? QString() : typed);
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
    SsidSettingsView view(*settings, wifiClient, locationManager.defaultValue(), check, true);
    show(view);
    auto& scan = button(view, "scan");
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
    const auto& inRange = named<NetworkList>(view, "networksInRange");
    const auto& selected = named<NetworkList>(view, "selectedNetworks");
    const auto shown = [](const char* text, const char* name) {
        return QString::fromUtf8(text).arg(displayName(QString::fromUtf8(name)));
    };
    const QStringList offers{shown("%1 is an office network", "Office"), shown("Add %1", "office")};
    EXPECT_TRUE(eventually([&] { return namesOf(inRange) == offers; }));
    click(*inRange.findChildren<IconButton*>().last());
    EXPECT_EQ(settings->inOfficeSsids.value(), (QStringList{u"Home"_s, u"Office"_s, u"Home"_s, u"office"_s}));
    click(*selected.findChild<IconButton*>());
    EXPECT_EQ(settings->inOfficeSsids.value(), (QStringList{u"Office"_s, u"office"_s}));
    auto& custom = field(view, "customNetwork");
    type(custom, u"Guest "_s);
    click(button(view, "addCustomNetwork"));
    QTest::keyClick(&custom, Qt::Key_Return);
    click(button(view, "addCustomNetwork"));
    EXPECT_EQ(settings->inOfficeSsids.value(), (QStringList{u"Office"_s, u"office"_s, u"Guest "_s, u"Guest "_s, {}}));
    EXPECT_TRUE(shownTexts(view).contains(u"(empty name)"_s));
    settings->inOfficeSsids = QStringList(u"<b>bold</b>"_s);
    EXPECT_TRUE(selected.findChild<IconButton*>()->toolTip().contains(u"&lt;b&gt;bold"_s)) << "no name is markup";
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
    const std::tuple<bool, bool, int, int, bool> rows[]{{true, true, 3, 0, true},
                                                        {true, false, 3, 2, true},
                                                        {true, true, 2, 1, false},
                                                        {false, false, 0, 0, false},
                                                        {false, true, 3, 0, true}};
    SsidSettingsView view(*settings, wifiClient, locationManager.defaultValue(), check, false);
    show(view);
    EXPECT_FALSE(shownTexts(view).contains(u"Automatic In Office Tracking"_s));
    for (const auto& [isTracking, isOn, permission, warnings, canScan] : rows) {
        settings->wifiTrackingEnabled = isTracking;
        EXPECT_EQ(view.findChild<Switch*>()->isChecked(), isTracking);
        setRadio(isOn, permission);
        EXPECT_EQ(shownTexts(view).filter(QRegularExpression(u"turned off|to allow tracking"_s)).size(), warnings);
        EXPECT_EQ(button(view, "scan").isEnabled(), canScan);
    }
    auto& minutes = field(view, "checkEveryInMinutes");
    const std::pair<QString, int> intervals[]{{u"1440"_s, 1440}, {u"1441"_s, 1440}, {u"0"_s, 1440},
                                              {{}, 1440},        {u"7.5"_s, 1440},  {u"1"_s, 1}};
    for (const auto& [typed, kept] : intervals) {
        type(minutes, typed);
        view.findChild<Switch*>()->setFocus();
        EXPECT_EQ(settings->checkEveryInMinutes, kept) << qPrintable(typed);
        EXPECT_EQ(minutes.text(), QString::number(kept));
    }
}

TEST(NetworkNameTest, showsWhatCannotBeSeenAndKeepsToItself)
{
    for (const auto& [ssid, shown] :
         {std::pair(u" Büro 3 "_s, u"\u2423Büro 3\u2423"_s), {u"a\tb\u202ec\u0001"_s, u"a\ufffdb\ufffdc\ufffd"_s}})
        EXPECT_EQ(displayName(ssid), u'\u2068' + shown + u'\u2069');
}

TEST_F(SettingsTest, generalSwitchesAreTheRecordsAndTheSystems)
{
    GeneralSettingsView view(*settings, launchAtLogin, false);
    show(view);
    const auto switches = view.findChildren<Switch*>();
    auto& login = named<Switch>(view, "launchAtLogin");
    for (const bool on : {true, false}) {
        click(login);
        EXPECT_EQ(loginItem.enabled, on);
        click(*switches.at(1));
        EXPECT_EQ(settings->notificationsEnabled, !on);
        settings->vacationDaysCountAsInOffice = on;
        EXPECT_EQ(switches.at(2)->isChecked(), on);
    }
    loginItem.isBroken = true;
    click(login);
    EXPECT_TRUE(eventually([&] { return !login.isChecked(); })) << "it shows what is, not what was wished";
    const QSignalSpy again(&view, &GeneralSettingsView::welcomeRequested);
    click(button(view, "welcome"));
    EXPECT_EQ(again.size(), 1);
    EXPECT_EQ(GeneralSettingsView(*settings, launchAtLogin, true).findChild<QWidget*>(u"welcome"_s), nullptr);
}
