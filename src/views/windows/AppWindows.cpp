// SPDX-License-Identifier: GPL-3.0-or-later
#include "AppWindows.h"

#include "AboutView.h"
#include "Accessibility.h"
#include "AppIcon.h"
#include "AppSettings.h"
#include "BackupService.h"
#include "CalendarViewSettingsView.h"
#include "ContentView.h"
#include "Fonts.h"
#include "HelpView.h"
#include "InOfficeCheck.h"
#include "LocationManager.h"
#include "LostStore.h"
#include "Page.h"
#include "RecordView.h"
#include "SettingsView.h"
#include "ViewParts.h"
#include "ViewSettings.h"
#include "WelcomeSteps.h"
#include "WelcomeView.h"
#include "WindowId.h"
#include "WindowSize.h"

#include <QApplication>
#include <QEvent>
#include <QShortcut>
#include <QTimer>

#include <chrono>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

// In the usual font, with which they grow.
constexpr QSize firstMainSize(534, 860);
constexpr QSize firstSettingsSize(740, 660);
constexpr QSize firstAboutSize(420, 210);

QSize grown(QSize size, const QFont& font)
{
    return {fonts::grown(size.width(), font), fonts::grown(size.height(), font)};
}

QString geometryKey(const QWidget& window)
{
    return window.objectName() + "Geometry"_L1;
}

// With Wayland, some desktops (GNOME 43) never bring an open window to the front, not even after a click in another
// window of the program. A new window gets the focus, or is announced.
void showAgainIfRefused(QWidget& window)
{
    constexpr auto timeout = 300ms;
    QTimer::singleShot(timeout, &window, [&window] {
        const QWidget* modal = QApplication::activeModalWidget();
        if (window.isActiveWindow() || (modal != nullptr && modal != &window))
            return;
        window.hide();
        window.show();
    });
}

void raise(QWidget& window, const QString& activationToken)
{
    const bool isOpen = window.isVisible();
    // Shows the desktop that the person asked for the window.
    if (!activationToken.isEmpty())
        qputenv("XDG_ACTIVATION_TOKEN", activationToken.toUtf8());
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
    if (!isOpen)
        return;
    if (QGuiApplication::platformName().startsWith("wayland"_L1))
        showAgainIfRefused(window);
    else if (QGuiApplication::focusWindow() == nullptr)
        QApplication::alert(&window);
}

} // namespace

AppWindows::AppWindows(const ViewParts& parts)
    : m_parts(parts)
{
    connect(&parts.check, &InOfficeCheck::postponed, this, &AppWindows::explainPostponedCheck);
    connect(&m_finding, &QFutureWatcherBase::finished, this, &AppWindows::showOffer);
}

AppWindows::~AppWindows()
{
    // A field takes what is being typed when it loses the focus.
    if (QWidget* focused = QApplication::focusWidget())
        focused->clearFocus();
    // This may complete the first run.
    if (m_welcome)
        m_welcome->close();
    for (QWidget* window : std::exchange(m_open, {})) {
        m_parts.viewSettings.setGeometry(geometryKey(*window), window->saveGeometry());
        window->disconnect(this);
        delete window;
    }
}

void AppWindows::openMain(const QString& activationToken)
{
    if (!m_main)
        makeMain();
    raise(*m_main, activationToken);
    if (m_welcome)
        raise(*m_welcome, {});
}

void AppWindows::openToday(const QString& activationToken)
{
    openMain(activationToken);
    m_main->showToday();
}

void AppWindows::openDay(QDate day, const QString& activationToken)
{
    openMain(activationToken);
    if (day.isValid())
        m_main->showDay(day);
}

void AppWindows::makeMain()
{
    m_main = new ContentView(m_parts);
    prepare(*m_main, u"contentView"_s, QCoreApplication::applicationName(), grown(firstMainSize, m_main->font()));
    connect(m_main, &ContentView::windowRequested, this, &AppWindows::open);
    connect(m_main, &ContentView::recordRequested, this, &AppWindows::openRecord);
    connect(m_main, &ContentView::usualWeekRequested, this, &AppWindows::openUsualWeek);
    connect(m_main, &ContentView::setUpRequested, this, &AppWindows::openWelcome);
    connect(m_main, &ContentView::quitRequested, this, &AppWindows::quitRequested);
    connect(m_main, &ContentView::reloadRequested, this, &AppWindows::reloadRequested);
    connect(m_main, &ContentView::painted, this, &AppWindows::mainPainted);
    // The icon can wait until the window is visible.
    connect(m_main, &ContentView::painted, this, [] { QApplication::setWindowIcon(appIcon()); });
    connect(m_main, &ContentView::painted, this, &AppWindows::findBackup);
    connect(m_main, &ContentView::backupDeclined, this, &AppWindows::beginFirstRun);
}

void AppWindows::findBackup()
{
    if (m_lostStore && !m_parts.backups.folder().backups().isEmpty())
        m_finding.setFuture(m_parts.backups.findNewestSound());
    else
        beginFirstRun();
}

void AppWindows::showOffer()
{
    const std::optional<BackupFile> found = m_finding.result();
    if (!found)
        beginFirstRun();
    else if (m_main)
        m_main->offerBackup(*m_lostStore, *found);
}

void AppWindows::beginFirstRun()
{
    m_lostStore.reset();
    // Until it is completed, the first run starts over with each main window.
    if (m_parts.settings.firstTime && m_main)
        openWelcome();
}

void AppWindows::open(WindowId id)
{
    QPointer<QWidget>& window = m_others[id];
    if (!window)
        window = makeWindow(id);
    raise(*window, {});
}

void AppWindows::openRecord(const DaySpan& span)
{
    open(WindowId::record);
    m_others[WindowId::record]->findChild<RecordView*>()->setShown(span);
}

void AppWindows::openUsualWeek()
{
    open(WindowId::settings);
    static_cast<SettingsView*>(m_others[WindowId::settings].data())->showUsualWeek();
}

void AppWindows::openWelcome()
{
    if (!m_main)
        makeMain();
    raise(*m_main, {});
    if (!m_welcome)
        makeWelcome();
    raise(*m_welcome, {});
}

void AppWindows::makeWelcome()
{
    const ViewParts& parts = m_parts;
    m_welcome = new WelcomeView(
        {
            [&parts] { return WelcomeSteps::makeIntroduction(parts.calendar()); },
            [&parts] { return WelcomeSteps::makeGoals(parts.settings, parts.viewSettings, parts.clock); },
            [&parts] { return WelcomeSteps::makeGeneral(parts.settings, parts.launchAtLogin); },
            [&parts] {
                LocationManager& locationManager = parts.locationManager.defaultValue();
                return WelcomeSteps::makeWiFi(parts.settings, parts.wifiClient, locationManager, parts.check);
            },
            [&parts] { return WelcomeSteps::makeSummary(parts.settings, parts.launchAtLogin); },
        },
        m_main);
    addShortcuts(*m_welcome);
    connect(m_welcome, &QDialog::rejected, m_main, &ContentView::offerSetUp);
    connect(m_welcome, &QDialog::accepted, this, [&parts] {
        parts.settings.firstTime = false;
        parts.check.checkAfterSetUp();
    });
}

void AppWindows::explainPostponedCheck()
{
    openWelcome();
    m_welcome->showMessage(CheckOutcome{CheckOutcome::NotSetUp}.text());
}

QWidget* AppWindows::makeWindow(WindowId id)
{
    switch (id) {
    case WindowId::calendarViewSettings: {
        auto* window = makeCardPage(new CalendarViewSettingsView(m_parts.viewSettings));
        prepare(*window, u"calendarViewSettings"_s, tr("Calendar View Settings"), window->sizeHint());
        return window;
    }
    case WindowId::help: {
        auto* window = makeCardPage(new HelpView(m_parts.viewSettings));
        prepare(*window, u"help"_s, tr("Help"), window->sizeHint());
        return window;
    }
    case WindowId::about: {
        auto* window = makeCardPage(new AboutView);
        prepare(*window, u"about"_s, tr("About Pellory"), grown(firstAboutSize, window->font()));
        return window;
    }
    case WindowId::record: {
        auto* window = makeCardPage(new RecordView(m_parts));
        prepare(*window, u"record"_s, tr("Save Record"), window->sizeHint());
        return window;
    }
    case WindowId::settings:
        break;
    }
    return makeSettings();
}

QWidget* AppWindows::makeSettings()
{
    auto* window = new SettingsView({m_parts.settings, m_parts.wifiClient, m_parts.locationManager.defaultValue(),
                                     m_parts.check, m_parts.launchAtLogin, m_parts.backups, m_parts.context,
                                     m_parts.counting, m_parts.clock, m_parts.viewSettings});
    prepare(*window, u"settings"_s, tr("Settings"), grown(firstSettingsSize, window->font()));
    connect(window, &SettingsView::welcomeRequested, this, [this, window] {
        openWelcome();
        window->close();
    });
    return window;
}

void AppWindows::prepare(QWidget& window, const QString& name, const QString& title, QSize firstSize)
{
    setAccessibleRole(window, QAccessible::Window);
    window.setObjectName(name);
    window.setWindowTitle(title);
    window.setAttribute(Qt::WA_DeleteOnClose);
    window.installEventFilter(this);
    addShortcuts(window);
    fitToScreen(window, firstSize);
    window.restoreGeometry(m_parts.viewSettings.geometry(geometryKey(window)));
    m_open.append(&window);
    connect(&window, &QObject::destroyed, this, &AppWindows::forget);
}

void AppWindows::addShortcuts(QWidget& window)
{
    const auto add = [&window](const QKeySequence& keys, auto* receiver, auto action) {
        connect(new QShortcut(keys, &window), &QShortcut::activated, receiver, action);
    };
    add(Qt::CTRL | Qt::Key_Q, this, &AppWindows::quitRequested);
    add(Qt::CTRL | Qt::Key_W, &window, &QWidget::close);
    add(Qt::CTRL | Qt::Key_Comma, this, [this] { open(WindowId::settings); });
    add(Qt::Key_F1, this, [this] { open(WindowId::help); });
    if (&window != m_main)
        add(Qt::Key_Escape, &window, &QWidget::close);
}

bool AppWindows::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Close) {
        auto* window = static_cast<QWidget*>(watched);
        m_parts.viewSettings.setGeometry(geometryKey(*window), window->saveGeometry());
        // Closing; open a new one on request.
        if (window == m_main)
            m_main.clear();
        std::erase_if(m_others, [window](const auto& other) { return other.second == window; });
    }
    return QObject::eventFilter(watched, event);
}

void AppWindows::forget(QObject* window)
{
    m_open.removeOne(window);
    if (m_open.isEmpty())
        Q_EMIT lastClosed();
}
