// SPDX-License-Identifier: GPL-3.0-or-later
#include "AppWindows.h"
#include "AboutView.h"
#include "CalendarView.h"
#include "CalendarViewSettingsView.h"
#include "ContentView.h"
#include "HelpView.h"
#include "LocationAlert.h"
#include "MarkedTextLabel.h"
#include "MonthView.h"
#include "Page.h"
#include "SettingsView.h"
#include "Switch.h"
#include "ViewTest.h"
#include "WelcomeView.h"
#include "WindowId.h"
#include "WindowSize.h"

#include <QComboBox>
#include <QLineEdit>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTabBar>
#include <QTranslator>

class AppWindowsTest : public ViewTest {
protected:
    AppWindowsTest() { settings->firstTime = false; }

    /// The view of this kind in an open window, which is activated.
    template <class View> static View* shown()
    {
        for (QWidget* each : QApplication::allWidgets()) {
            auto* view = qobject_cast<View*>(each);
            if (view != nullptr && view->isVisible()) {
                show(*view->window());
                return view;
            }
        }
        return nullptr;
    }
    /// Walks through a window with Tab, and expects to reach everything in the order on the screen.
    static void walk(QWidget& window)
    {
        show(window);
        auto stops = window.findChildren<QWidget*>();
        stops.removeIf([](const QWidget* each) {
            return !each->isVisible() || !each->isEnabled() || (each->focusPolicy() & Qt::TabFocus) == 0;
        });
        QList<QWidget*> walked;
        window.setFocus();
        for (qsizetype i = 0; i < stops.size(); ++i) {
            press(window, Qt::Key_Tab);
            walked.append(window.focusWidget());
        }
        EXPECT_THAT(walked, testing::UnorderedElementsAreArray(stops));
        for (auto* bar : window.findChildren<QScrollBar*>())
            bar->setValue(0);
        const auto place = [&](const QWidget* stop) { return QRect(stop->mapTo(&window, QPoint()), stop->size()); };
        const auto wrong = std::ranges::adjacent_find(walked, [&](const QWidget* from, const QWidget* to) {
            const QRect before = place(from), after = place(to);
            const bool isSameRow = before.top() < after.center().y() && after.top() < before.center().y();
            return isSameRow ? after.left() <= before.left() : after.top() <= before.top();
        });
        EXPECT_EQ(wrong, walked.end()) << qPrintable((*wrong)->accessibleName());
        press(window, Qt::Key_Backtab);
        EXPECT_EQ(window.focusWidget(), walked.at(std::max<qsizetype>(walked.size() - 2, 0)));
    }
    static void push(const QWidget& view, const char* name) { click(named<QAbstractButton>(view, name)); }

    std::unique_ptr<AppWindows> windows = std::make_unique<AppWindows>(parts);
};

TEST_F(AppWindowsTest, areOpenedOnceAndClosed)
{
    windows->openMain();
    auto* main = shown<ContentView>();
    EXPECT_TRUE(eventually([&] { return !main->windowIcon().isNull(); }));
    press(*main, Qt::Key_Escape); // which closes the other windows only
    for (int i = 0; i < 2; ++i) {
        press(*main, Qt::Key_Comma, Qt::ControlModifier);
        press(*main, Qt::Key_F1);
    }
    EXPECT_EQ(std::ranges::count_if(QApplication::topLevelWidgets(), &QWidget::isVisible), 3);
    const QSignalSpy quit(windows.get(), &AppWindows::quitRequested);
    for (const auto& keys : {QList{Qt::Key_Up, Qt::Key_Return}, {Qt::Key_Up, Qt::Key_Up, Qt::Key_Return}}) {
        click(named<QWidget>(*shown<ContentView>(), "menu"));
        for (const Qt::Key key : keys)
            press(*QApplication::activePopupWidget(), key);
    }
    press(*shown<AboutView>()->window(), Qt::Key_Escape);
    press(*shown<SettingsView>(), Qt::Key_Escape);
    press(*shown<HelpView>()->window(), Qt::Key_W, Qt::ControlModifier);
    EXPECT_EQ(shown<SettingsView>(), nullptr);
    EXPECT_EQ(shown<HelpView>(), nullptr);
    windows->openDay({2025, 2, 3});
    ASSERT_EQ(shown<ContentView>(), main);
    EXPECT_TRUE(eventually([&] { return main->findChild<CalendarView*>()->focusedDay() == 3; }));
    EXPECT_EQ(main->findChild<MonthView*>()->month(), (YearMonth{2025, 2}));
    windows->openToday();
    EXPECT_EQ(main->findChild<MonthView*>()->month(), (YearMonth{2026, 11}));
    main->resize(700, 640);
    main->close();
    windows->openMain(); // before the closed one is deleted
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(shown<ContentView>()->size(), QSize(700, 640));

    // What is being typed is taken when the program ends.
    press(*shown<ContentView>(), Qt::Key_Comma, Qt::ControlModifier);
    const auto fields = shown<SettingsView>()->findChildren<QLineEdit*>();
    auto* days = *std::ranges::find(fields, u"4.00"_s, &QLineEdit::text);
    days->setFocus();
    days->selectAll();
    QTest::keyClicks(days, u"5"_s);
    press(*days->window(), Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(quit.size(), 2);
    windows.reset();
    EXPECT_EQ(settings->daysPerWeekGoals.value().last()->wantedDaysPerWeek.value(), u"5.00"_s);
}

TEST_F(AppWindowsTest, fitOnASmallScreenWithLargeLettersAndNeverScrollSideways)
{
    for (const QSize& size : {QSize(800, 600), QSize(1024, 600), QSize(3840, 2160)})
        EXPECT_EQ(roomForWindow({{}, size}, {0, 0, size.width(), size.height() - 20}), size - QSize(16, 88));
    EXPECT_EQ(roomForWindow({0, 0, 1024, 600}, {60, 50, 964, 550}), QSize(948, 502));
    settings->wifiTrackingEnabled = true;
    wifiClient.interface->powerOn = false;
    authorization.status = AuthorizationStatus::denied;
    const QFont usual = QApplication::font();
    const auto restore = qScopeGuard([&] { QApplication::setFont(usual); });
    for (const int points : {11, 22}) {
        SCOPED_TRACE(points);
        QApplication::setFont({usual.family(), points});
        windows->openWelcome();
        for (const WindowId id : {WindowId::settings, WindowId::help, WindowId::calendarViewSettings})
            windows->open(id);
        for (int step = 0; step < 5; ++step) { // as many as the settings have pages
            shown<SettingsView>()->findChild<QTabBar*>()->setCurrentIndex(step % 4);
            shown<ContentView>()->findChild<QTabBar*>()->setCurrentIndex(step % 2);
            for (const QWidget* window : QApplication::topLevelWidgets()) {
                const QSize room = roomForWindow(window->screen()->geometry(), window->screen()->availableGeometry());
                EXPECT_EQ(window->size(), window->size().boundedTo(room)) << qPrintable(window->windowTitle());
            }
            for (const QWidget* each : QApplication::allWidgets()) {
                const auto* page = qobject_cast<const Page*>(each);
                const bool isShown = page != nullptr && page->isVisible();
                EXPECT_TRUE(!isShown || page->horizontalScrollBar()->maximum() == 0)
                    << qPrintable(each->window()->windowTitle()) << step;
            }
            push(*shown<WelcomeView>(), "next");
        }
        windows = std::make_unique<AppWindows>(parts);
    }
}

TEST_F(AppWindowsTest, switchesAreTheSameInEveryWindowAndStoredAtOnce)
{
    windows->open(WindowId::calendarViewSettings);
    windows->open(WindowId::help);
    const auto switches = shown<CalendarViewSettingsView>()->findChildren<Switch*>();
    const std::pair<QString, QString> rows[]{
        {u"Show Progress Trackers"_s, u"ProgressBars"_s},
        {u"Show Quarter Stats"_s, u"QuarterStats"_s},
        {u"Show Month Stats"_s, u"MonthStats"_s},
        {u"Show \"Will be In Office\" in Progress Tracker"_s, u"WillBeInOfficeStats"_s},
        {u"Show day status on hover"_s, u"StatusLabelOnHover"_s},
        {u"Show Unmarked Workdays"_s, u"UnmarkedWorkdays"_s},
        {u"Show Week Numbers"_s, u"WeekNumbers"_s},
    };
    qsizetype changed = 0;
    for (const auto& [text, key] : rows) {
        EXPECT_EQ(switches.at(changed)->text(), text);
        click(*switches.at(changed));
        EXPECT_EQ(stored.value(u"calendarViewShow"_s + key), QVariant(changed == 6)); // off at first
        EXPECT_EQ(stored.allKeys().size(), ++changed);
    }
    EXPECT_FALSE(ViewSettings(stored).showMonthStats);
    click(*shown<HelpView>()->findChild<Switch*>());
    EXPECT_TRUE(viewSettings.showStatusLabelOnHover);
    EXPECT_TRUE(switches.at(4)->isChecked());
    auto& firstDay = *shown<CalendarViewSettingsView>()->findChild<QComboBox*>();
    EXPECT_EQ(firstDay.currentIndex(), 0);
    for (const auto& [index, day] : {std::pair(1, Qt::Monday), {2, QLocale().firstDayOfWeek()}, {0, Qt::Sunday}}) {
        firstDay.setCurrentIndex(index);
        EXPECT_EQ(ViewSettings(stored).weekStart(), day);
    }
}

TEST_F(AppWindowsTest, theFirstRunIsLedThroughUntilItIsCompleted)
{
    settings->firstTime = true;
    settings->wifiTrackingEnabled = true;
    settings->inOfficeSsids = {u"Office"_s};
    authorization.status = AuthorizationStatus::notDetermined;
    EXPECT_CALL(authorization, requestAlwaysAuthorization);
    windows->openMain();
    WelcomeView* welcome = nullptr;
    ASSERT_TRUE(eventually([&] { return (welcome = shown<WelcomeView>()) != nullptr; }));
    press(*welcome, Qt::Key_Escape); // which completes nothing
    push(*shown<ContentView>(), "finishSetUp");
    welcome = shown<WelcomeView>();
    click(dayButton(*welcome, 20)); // unknown in the sample as well
    EXPECT_EQ(welcome->findChild<MarkedTextLabel*>(u"headline"_s)->text(), u"5 days in the office this month"_s);
    for (int step = 1; step < 5; ++step)
        press(*welcome, Qt::Key_Return);
    EXPECT_THAT(shownTexts(*welcome), testing::Contains(u"Automatic tracking is on"_s));
    push(*welcome, "back");
    push(*welcome, "grant");
    push(*welcome, "runCheck");
    EXPECT_TRUE(named<QWidget>(*welcome, "message").isVisible());
    push(*welcome, "skip");
    EXPECT_TRUE(settings->firstTime);
    press(*welcome, Qt::Key_Escape);
    EXPECT_FALSE(settings->firstTime);
    EXPECT_FALSE(named<QWidget>(*shown<ContentView>(), "finishSetUp").isVisible());
    Month expected(2026, 11);
    mark(expected, 20, DayState::IN_OFFICE); // by the one check, and nothing of the sample
    EXPECT_EQ(month(2026, 11)->days.value(), expected.days.value());

    windows->open(WindowId::settings);
    shown<SettingsView>()->findChild<QTabBar*>()->setCurrentIndex(3);
    push(*shown<SettingsView>(), "welcome");
    EXPECT_EQ(shown<SettingsView>(), nullptr);
    settings->firstTime = true;
    settings->inOfficeSsids = QStringList();
    push(*shown<WelcomeView>(), "skip");
    EXPECT_EQ(shownTexts(*shown<WelcomeView>()).filter(u"No office network is set"_s).size(), 1);
    windows.reset(); // as when the program is quit
    EXPECT_FALSE(settings->firstTime);
}

TEST_F(AppWindowsTest, tabFollowsTheScreenInEveryWindow)
{
    settings->wifiTrackingEnabled = true;
    settings->inOfficeSsids = {u"Home"_s};
    wifiClient.networks = {{u"Office"_s}, {u"Guest"_s}};
    setRadio(true, 2); // which also brings the alert
    windows->openMain();
    for (const WindowId id : {WindowId::settings, WindowId::help, WindowId::calendarViewSettings})
        windows->open(id);
    auto& main = *shown<ContentView>();
    auto& all = *shown<SettingsView>();
    EXPECT_TRUE(eventually([&] { return shown<LocationAlert>() != nullptr; }));
    press(main, Qt::Key_PageUp); // or there would be no link to today
    for (int page = 0; page < 4; ++page) {
        main.findChild<QTabBar*>()->setCurrentIndex(page % 2);
        walk(main);
        all.findChild<QTabBar*>()->setCurrentIndex(page);
        EXPECT_TRUE(eventually([&] { return !shownTexts(all).contains(u"Scanning for networks..."_s); }));
        setRadio(true, 3); // so that the scan has its button
        EXPECT_EQ(settings->addGoal(u"3"_s), true);
        settings->inOfficeSsids = settings->inOfficeSsids.value() + QStringList(u"Later"_s);
        walk(all);
    }
    walk(*shown<HelpView>()->window());
    walk(*shown<CalendarViewSettingsView>()->window());
    windows->openWelcome();
    for (int step = 1; step < 5; ++step) {
        walk(*shown<WelcomeView>());
        push(*shown<WelcomeView>(), "next");
    }
}

// Every text a third longer, as another language may have it.
class LongerTexts : public QTranslator {
public:
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char* /*context*/, const char* text, const char* /*disambiguation*/,
                                    int /*n*/) const override
    {
        const QString words = QString::fromUtf8(text);
        return words.size() < 4 ? words : words + u" ~~~~"_s.repeated((words.size() + 14) / 15);
    }
};

bool isClipped(const QWidget& text)
{
    const QSize least = text.minimumSizeHint();
    const int height = text.hasHeightForWidth() ? text.heightForWidth(text.width()) : least.height();
    const int right = text.mapTo(text.window(), text.rect().topRight()).x();
    const auto* marked = qobject_cast<const MarkedTextLabel*>(&text);
    if (marked != nullptr && marked->isElided())
        return true;
    return text.width() < least.width() || text.height() < height || right > text.window()->width();
}

// The shown texts that have less room than they need.
QStringList clippedTexts()
{
    QStringList clipped;
    for (const QWidget* each : QApplication::allWidgets()) {
        if (each->isVisible() && (each->inherits("QLabel") || each->inherits("QAbstractButton")) && isClipped(*each))
            clipped.append(each->window()->objectName() + u": "_s + each->property("text").toString());
    }
    return clipped;
}

// The words that are seen or read out and did not go through the translator.
QStringList untranslatedTexts()
{
    QStringList texts;
    for (const QWidget* each : QApplication::allWidgets()) {
        for (const char* name : {"text", "placeholderText", "windowTitle", "toolTip", "accessibleName"})
            texts.append(each->isVisible() ? each->property(name).toString() : QString());
    }
    return texts.filter(QRegularExpression(u"^[^~]*\\p{L}{4}[^~]*$"_s));
}

TEST_F(AppWindowsTest, clipNoTextAndTranslateAll)
{
    settings->wifiTrackingEnabled = true;
    wifiClient.interface->powerOn = false;
    authorization.status = AuthorizationStatus::denied;
    LongerTexts longer;
    QCoreApplication::installTranslator(&longer);
    windows->openWelcome();
    for (const WindowId id : {WindowId::settings, WindowId::help, WindowId::about, WindowId::calendarViewSettings})
        windows->open(id);
    auto* tabs = shown<SettingsView>()->findChild<QTabBar*>();
    QStringList untranslated;
    for (int step = 0; step < 5; ++step) { // as many as the settings have pages
        tabs->setCurrentIndex(step % tabs->count());
        shown<ContentView>()->findChild<QTabBar*>()->setCurrentIndex(step % 2);
        EXPECT_TRUE(eventually([&] { return clippedTexts().isEmpty(); })) << qPrintable(clippedTexts().join(u'\n'));
        untranslated += untranslatedTexts();
        EXPECT_LT(shown<ContentView>()->findChild<LocationAlert*>()->height(), 300); // even where its buttons stack
        push(*shown<WelcomeView>(), "next");
    }
    // Names, and what is stored already.
    for (const auto& name : {QCoreApplication::applicationName(), u"\u2068Office\u2069"_s, u"not fired"_s, u"ideal"_s,
                             u"October"_s, u"November"_s, u"December"_s, path})
        untranslated.removeAll(name);
    for (int day = Qt::Monday; day <= Qt::Sunday; ++day)
        untranslated.removeAll(QLocale().dayName(day));
    EXPECT_EQ(untranslated, QStringList());
}
