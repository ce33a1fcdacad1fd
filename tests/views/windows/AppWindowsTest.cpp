// SPDX-License-Identifier: GPL-3.0-or-later
#include "AppWindows.h"
#include "CalendarView.h"
#include "CalendarViewSettingsView.h"
#include "ContentView.h"
#include "HelpView.h"
#include "LocationAlert.h"
#include "MarkedTextLabel.h"
#include "MonthView.h"
#include "SettingsView.h"
#include "Switch.h"
#include "ViewTest.h"
#include "WelcomeView.h"
#include "WindowId.h"

#include <QLineEdit>
#include <QRegularExpression>
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
    static void push(const QWidget& view, const char* name) { click(named<QAbstractButton>(view, name)); }

    AppWindows windows{parts};
};

TEST_F(AppWindowsTest, areOpenedOnceAndClosed)
{
    const QSignalSpy closed(&windows, &AppWindows::lastClosed);
    windows.openMain();
    auto* main = shown<ContentView>();
    EXPECT_TRUE(eventually([&] { return !main->windowIcon().isNull(); }));
    press(*main, Qt::Key_Escape); // which closes the other windows only
    for (int i = 0; i < 2; ++i) {
        press(*main, Qt::Key_Comma, Qt::ControlModifier);
        press(*main, Qt::Key_F1);
    }
    EXPECT_EQ(std::ranges::count_if(QApplication::topLevelWidgets(), &QWidget::isVisible), 3);
    press(*shown<SettingsView>(), Qt::Key_Escape);
    press(*shown<HelpView>()->window(), Qt::Key_W, Qt::ControlModifier);
    EXPECT_EQ(shown<SettingsView>(), nullptr);
    EXPECT_EQ(shown<HelpView>(), nullptr);
    windows.openDay({2025, 2, 3});
    ASSERT_EQ(shown<ContentView>(), main);
    EXPECT_TRUE(eventually([&] { return main->findChild<CalendarView*>()->focusedDay() == 3; }));
    EXPECT_EQ(main->findChild<MonthView*>()->period(), (YearMonth{2025, 2}));
    main->resize(700, 640);
    windows.open(WindowId::settings);
    shown<SettingsView>()->close();
    main->close();
    windows.openMain(); // before the closed ones are deleted
    windows.open(WindowId::settings);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_NE(shown<SettingsView>(), nullptr);
    ASSERT_NE(shown<ContentView>(), nullptr);
    EXPECT_EQ(shown<ContentView>()->size(), QSize(700, 640));
    EXPECT_EQ(closed.size(), 0);
    shown<SettingsView>()->close();
    shown<ContentView>()->close();
    EXPECT_TRUE(eventually([&] { return closed.size() == 1; }));
}

TEST_F(AppWindowsTest, whatIsBeingTypedIsTakenWhenTheProgramEnds)
{
    {
        AppWindows ending(parts);
        const QSignalSpy quit(&ending, &AppWindows::quitRequested);
        ending.open(WindowId::settings);
        const auto fields = shown<SettingsView>()->findChildren<QLineEdit*>();
        auto* days = *std::ranges::find(fields, u"4.00"_s, &QLineEdit::text);
        days->setFocus();
        days->selectAll();
        QTest::keyClicks(days, u"5"_s);
        press(*days->window(), Qt::Key_Q, Qt::ControlModifier);
        EXPECT_EQ(quit.size(), 1);
    }
    EXPECT_EQ(settings->daysPerWeekGoals.value().last()->wantedDaysPerWeek.value(), u"5.00"_s);
}

TEST_F(AppWindowsTest, switchesAreTheSameInEveryWindowAndStoredAtOnce)
{
    windows.open(WindowId::calendarViewSettings);
    windows.open(WindowId::help);
    const auto switches = shown<CalendarViewSettingsView>()->findChildren<Switch*>();
    QStringList keys;
    for (const char* part :
         {"ProgressBars", "QuarterStats", "MonthStats", "WillBeInOfficeStats", "StatusLabelOnHover"}) {
        click(*switches.at(keys.size()));
        keys.append(u"calendarViewShow"_s + QString::fromLatin1(part));
        EXPECT_EQ(stored.value(keys.last()), QVariant(false));
        EXPECT_EQ(stored.allKeys().size(), keys.size());
    }
    EXPECT_FALSE(ViewSettings(stored).showMonthStats);
    const auto& help = *shown<HelpView>();
    EXPECT_TRUE(shownTexts(help).contains(u": Open Status Picker Menu "_s));
    click(*help.findChild<Switch*>());
    EXPECT_TRUE(switches.last()->isChecked());
    EXPECT_TRUE(viewSettings.showStatusLabelOnHover);
}

TEST_F(AppWindowsTest, theFirstRunIsLedThroughUntilItIsCompleted)
{
    settings->firstTime = true;
    settings->wifiTrackingEnabled = true;
    settings->inOfficeSsids = {u"Office"_s};
    authorization.status = AuthorizationStatus::notDetermined;
    EXPECT_CALL(authorization, requestAlwaysAuthorization).Times(2);
    for (const bool completes : {false, true}) {
        windows.openMain();
        WelcomeView* welcome = nullptr;
        ASSERT_TRUE(eventually([&] { return (welcome = shown<WelcomeView>()) != nullptr; }));
        click(dayButton(*welcome, 20)); // unknown in the sample as well
        EXPECT_EQ(welcome->findChild<MarkedTextLabel*>(u"headline"_s)->text(), u"5 days in the office this month"_s);
        for (int step = 1; step < 5; ++step)
            press(*welcome, Qt::Key_Return);
        EXPECT_THAT(shownTexts(*welcome), testing::Contains(u"Automatic tracking is on"_s));
        push(*welcome, "back");
        push(*welcome, "grant");
        EXPECT_EQ(welcome->findChild<QWidget*>(u"welcome"_s), nullptr) << "which starts the first run";
        EXPECT_FALSE(shownTexts(*welcome).contains(u"Automatic In Office Tracking"_s));
        push(*welcome, "back");
        settings->notificationsEnabled = completes;
        push(*welcome, "skip");
        EXPECT_EQ(shownTexts(*welcome).contains(u"Notifications are on"_s), completes);
        if (completes)
            push(*welcome, "next");
        else
            press(*welcome, Qt::Key_Escape);
        EXPECT_EQ(settings->firstTime, !completes);
        shown<ContentView>()->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    Month expected(2026, 11);
    mark(expected, 20, DayState::IN_OFFICE); // by the one check, and nothing of the sample
    EXPECT_EQ(month(2026, 11)->days.value(), expected.days.value());

    windows.open(WindowId::settings);
    Q_EMIT shown<SettingsView>()->welcomeRequested();
    EXPECT_EQ(shown<SettingsView>(), nullptr);
    EXPECT_NE(shown<WelcomeView>(), nullptr);
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

// The shown texts that have less room than they need.
QStringList clippedTexts()
{
    QStringList clipped;
    for (const QWidget* each : QApplication::allWidgets()) {
        const bool isText = qobject_cast<const QLabel*>(each) != nullptr;
        if (!each->isVisible() || !(isText || qobject_cast<const QAbstractButton*>(each) != nullptr))
            continue;
        const QSize least = each->minimumSizeHint();
        const int height = each->hasHeightForWidth() ? each->heightForWidth(each->width()) : least.height();
        const int right = each->mapTo(each->window(), each->rect().topRight()).x();
        if (each->width() < least.width() || each->height() < height || right > each->window()->width())
            clipped.append(each->window()->objectName() + u": "_s + each->property("text").toString());
    }
    return clipped;
}

// The words that are seen or read out and did not go through the translator.
QSet<QString> untranslatedTexts()
{
    QSet<QString> texts;
    for (const QWidget* each : QApplication::allWidgets()) {
        QStringList own;
        for (const char* name : {"text", "placeholderText", "windowTitle", "toolTip", "accessibleName"})
            own.append(each->property(name).toString());
        for (const QString& text :
             each->isVisible() ? own.filter(QRegularExpression(u"^[^~]*\\p{L}{4}[^~]*$"_s)) : QStringList())
            texts.insert(text);
    }
    return texts;
}

TEST_F(AppWindowsTest, clipNoTextAndTranslateAll)
{
    settings->wifiTrackingEnabled = true;
    wifiClient.interface->powerOn = false;
    authorization.status = AuthorizationStatus::denied;
    LongerTexts longer;
    QCoreApplication::installTranslator(&longer);
    windows.openWelcome();
    for (const WindowId id : {WindowId::settings, WindowId::help, WindowId::calendarViewSettings})
        windows.open(id);
    auto* tabs = shown<SettingsView>()->findChild<QTabBar*>();
    QSet<QString> untranslated;
    for (int step = 0; step < 5; ++step) {
        tabs->setCurrentIndex(step % tabs->count());
        shown<ContentView>()->findChild<QTabBar*>()->setCurrentIndex(step % 2);
        EXPECT_TRUE(eventually([&] { return clippedTexts().isEmpty(); })) << qPrintable(clippedTexts().join(u'\n'));
        untranslated += untranslatedTexts();
        EXPECT_LT(shown<ContentView>()->findChild<LocationAlert*>()->height(), 300); // even where its buttons stack
        push(*shown<WelcomeView>(), "next");
    }
    // Names, and what is stored already.
    EXPECT_EQ(untranslated, (QSet{QCoreApplication::applicationName(), u"\u2068Office\u2069"_s, u"not fired"_s,
                                  u"ideal"_s, u"October"_s, u"November"_s, u"December"_s}));
}
