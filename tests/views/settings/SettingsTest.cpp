// SPDX-License-Identifier: GPL-3.0-or-later
#include "IconButton.h"
#include "NetworkList.h"
#include "NetworkName.h"
#include "SettingsView.h"
#include "SsidSettingsView.h"
#include "Switch.h"
#include "ViewTest.h"

#include <QLineEdit>
#include <QRegularExpression>
#include <QTabBar>

class SettingsTest : public ViewTest {
protected:
    enum Page { goalsPage, countingPage, networksPage, generalPage };

    void open(Page page)
    {
        view.resize(560, 900);
        show(view);
        view.findChild<QTabBar*>()->setCurrentIndex(page);
    }
    [[nodiscard]] QAbstractButton& button(const char* name) const { return named<QAbstractButton>(view, name); }
    /// The first control that says this to assistive technology.
    template <class Control> [[nodiscard]] Control& called(const QString& name) const
    {
        const auto controls = view.findChildren<Control*>();
        return **std::ranges::find(controls, name, &QWidget::accessibleName);
    }
    /// Types over the text of a field.
    static void type(QLineEdit& field, const QString& text)
    {
        field.setFocus();
        field.selectAll();
        QTest::keyClicks(&field, text);
    }
    [[nodiscard]] bool isShown(const QString& text) const { return shownTexts(view).contains(text); }
    [[nodiscard]] QStringList goals() const
    {
        QStringList texts;
        for (const auto& goal : settings->daysPerWeekGoals.value())
            texts.append(goal->wantedDaysPerWeek.value() + u'|' + goal->desc);
        return texts;
    }
    [[nodiscard]] QStringList networks() const { return settings->inOfficeSsids.value(); }

    SettingsView view{{*settings, wifiClient, locationManager.defaultValue(), check, launchAtLogin, backups, context,
                       counting, clock, viewSettings}};
};

TEST_F(SettingsTest, aGoalIsAddedByReturnAndByTheButton)
{
    open(goalsPage);
    auto& entry = called<QLineEdit>(u"New goal"_s);
    const QStringList before = goals(), three{before[0], u"3.00|"_s, before[1]},
                      four{before[0], u"2.50|"_s, u"3.00|"_s, before[1]};
    // What is typed, whether with Return, the goals after it, and whether it is refused.
    const std::tuple<QString, bool, QStringList, bool> rows[]{{u"8"_s, true, before, true},
                                                              {u"3"_s, true, three, false},
                                                              {u"2.5"_s, false, four, false},
                                                              {u"2.501"_s, false, four, false}};
    for (const auto& [typed, isReturn, expected, isRefused] : rows) {
        type(entry, typed);
        isReturn ? QTest::keyClick(&entry, Qt::Key_Return) : click(button("addGoal"));
        EXPECT_EQ(goals(), expected) << qPrintable(typed);
        EXPECT_EQ(entry.text(), isReturn && !isRefused ? QString() : typed);
        EXPECT_EQ(isShown(u"Input must be a number between 0.0 and 7.0"_s), isRefused) << qPrintable(typed);
        type(entry, u"0"_s); // which is not refused yet
        EXPECT_FALSE(isShown(u"Input must be a number between 0.0 and 7.0"_s));
    }
    const auto labels = view.findChildren<QLabel*>();
    const QLabel& heading = **std::ranges::find(labels, u"Description"_s, &QLabel::text);
    const QPoint place = heading.mapTo(&view, QPoint());
    settings->daysPerWeekGoals = AppSettings::Goals();
    QCoreApplication::processEvents();
    EXPECT_EQ(heading.mapTo(&view, QPoint()).x(), place.x());
    EXPECT_TRUE(isShown(u"No \"days in office per week\" goals"_s));
}

TEST_F(SettingsTest, aGoalIsEditedInItsPlaceAndRemoved)
{
    open(goalsPage);
    auto& days = called<QLineEdit>(u"Days Per Week Goal"_s);
    auto& description = called<QLineEdit>(u"Description of the goal 4.00"_s);
    // What is typed, whether it is refused, and what stands there when the field is left. Only an addition sorts.
    const std::tuple<QString, bool, QString> rows[]{
        {u"1.5"_s, false, u"1.50"_s}, {u"9"_s, true, u"1.50"_s}, {u"7"_s, false, u"7.00"_s}};
    const auto isRefusalShown = [&] { return isShown(u"Days Per Week must be a number between 0.0 and 7.0"_s); };
    for (const auto& [typed, isRefused, kept] : rows) {
        type(days, typed);
        EXPECT_EQ(days.text(), typed);
        EXPECT_EQ(isRefusalShown(), isRefused);
        type(description, u"all of it"_s);
        EXPECT_EQ(days.text(), isRefused ? typed : kept);
        EXPECT_EQ(isRefusalShown(), isRefused);
        EXPECT_EQ(goals(), (QStringList{kept + u"|not fired"_s, u"4.00|all of it"_s}));
    }
    type(days, u"8"_s);
    auto& removal = called<IconButton>(u"Remove the goal 7.00"_s);
    removal.setFocus();
    QTest::keyClick(&removal, Qt::Key_Return);
    EXPECT_EQ(goals(), QStringList(u"4.00|all of it"_s));
    EXPECT_FALSE(isRefusalShown()) << "its field has gone";
    EXPECT_EQ(view.focusWidget()->accessibleName(), u"Remove the goal 4.00"_s);
}

TEST_F(SettingsTest, networksComeFromAScanAndByName)
{
    wifiClient.networks = {{u"office"_s}, {u"Office"_s}, {std::nullopt}, {u"Office"_s}};
    settings->inOfficeSsids = {u"Home"_s, u"Office"_s, u"Home"_s};
    wifiClient.isHeld = true;
    open(networksPage);
    auto& scan = button("scan");
    EXPECT_TRUE(isShown(u"Scanning for networks..."_s));
    EXPECT_FALSE(scan.isEnabled());
    wifiClient.isHeld = false;
    for (int answers = 0; answers < 3; ++answers) // to the monitor, and to both questions of the scan
        Q_EMIT wifiClient.letGo();
    const QString upper = displayName(u"Office"_s), lower = displayName(u"office"_s);
    const auto& inRange = named<QWidget>(view, "networksInRange");
    EXPECT_TRUE(eventually([&] { return shownTexts(inRange) == QStringList{upper, lower}; }));
    EXPECT_FALSE(called<IconButton>(upper + u" is an office network"_s).isEnabled());
    click(called<IconButton>(u"Add "_s + lower));
    click(called<IconButton>(u"Remove "_s + displayName(u"Home"_s)));
    EXPECT_EQ(networks(), (QStringList{u"Office"_s, u"office"_s}));
    auto& custom = called<QLineEdit>(u"Add custom network"_s);
    type(custom, u"Guest "_s);
    click(button("addCustomNetwork"));
    QTest::keyClick(&custom, Qt::Key_Return);
    click(button("addCustomNetwork"));
    EXPECT_EQ(networks(), (QStringList{u"Office"_s, u"office"_s, u"Guest "_s, u"Guest "_s, {}}));
    EXPECT_TRUE(isShown(u"(empty name)"_s));
    settings->inOfficeSsids = QStringList(u"<b>bold</b>"_s);
    const QString removal = u"Remove "_s + displayName(u"<b>bold</b>"_s);
    EXPECT_EQ(called<IconButton>(removal).toolTip(), removal.toHtmlEscaped());

    wifiClient.failure = u"busy"_s;
    wifiClient.isHeld = true;
    scan.setFocus();
    QTest::keyClick(&scan, Qt::Key_Return);
    EXPECT_EQ(view.focusWidget(), view.findChild<SsidSettingsView*>()) << "no button that a second key would press";
    wifiClient.isHeld = false;
    Q_EMIT wifiClient.letGo();
    EXPECT_TRUE(eventually([&] { return isShown(u"No networks found"_s); }));
}

TEST_F(SettingsTest, whatTrackingLacksIsSaid)
{
    // Whether it tracks and Wi-Fi is on, the permission; then the number of warnings.
    const std::tuple<bool, bool, int, int> rows[]{
        {true, true, 3, 0}, {true, false, 3, 2}, {true, true, 2, 1}, {false, false, 0, 0}};
    open(networksPage);
    for (const auto& [isTracking, isOn, permission, warnings] : rows) {
        settings->wifiTrackingEnabled = isTracking;
        setRadio(isOn, permission);
        EXPECT_EQ(shownTexts(view).filter(QRegularExpression(u"turned off|to allow tracking"_s)).size(), warnings);
        EXPECT_EQ(button("scan").isEnabled(), permission == 3);
        EXPECT_EQ(named<QLabel>(view, "location").isVisible(), permission != 3);
    }
    EXPECT_CALL(systemSettings, openLocationSettings);
    Q_EMIT named<QLabel>(view, "location").linkActivated({});
    auto& minutes = called<QLineEdit>(u"Check Every (mins)"_s);
    for (const auto& [typed, kept] : {std::pair(u"1440"_s, 1440), {u"1441"_s, 1440}, {u"0"_s, 1440}, {u"01"_s, 1}}) {
        type(minutes, typed);
        view.findChild<Switch*>()->setFocus();
        EXPECT_EQ(settings->checkEveryInMinutes, kept) << qPrintable(typed);
        const bool isRefused = typed.toInt() != kept;
        EXPECT_EQ(minutes.text(), isRefused ? typed : QString::number(kept));
        EXPECT_EQ(isShown(u"Minutes must be a whole number between 1 and 1440"_s), isRefused);
    }
}

TEST(NetworkNameTest, showsWhatIsInvisibleAndKeepsToItself)
{
    for (const auto& [ssid, shown] :
         {std::pair(u" Büro 3 "_s, u"\u2423Büro 3\u2423"_s), {u"a\tb\u202ec\u0001"_s, u"a\ufffdb\ufffdc\ufffd"_s}})
        EXPECT_EQ(displayName(ssid), u'\u2068' + shown + u'\u2069');
}

TEST_F(SettingsTest, generalSwitchesAreTheRecordsAndTheSystems)
{
    open(generalPage);
    auto& login = named<Switch>(view, "launchAtLogin");
    const auto switches = login.parentWidget()->findChildren<Switch*>();
    for (Switch* each : switches) {
        each->setFocus();
        press(view, Qt::Key_Return);
    }
    EXPECT_TRUE(loginItem.enabled);
    EXPECT_FALSE(settings->notificationsEnabled);
    EXPECT_TRUE(settings->vacationDaysCountAsInOffice);
    loginItem.isBroken = true;
    click(login);
    EXPECT_TRUE(eventually([&] { return login.isChecked(); })) << "it shows what is, not what was asked for";
    loginItem.enabled = false; // by another program
    loginItem.changed();
    EXPECT_FALSE(login.isChecked());
}
