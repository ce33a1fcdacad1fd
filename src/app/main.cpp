// SPDX-License-Identifier: GPL-3.0-or-later
#include "Accessibility.h"
#include "AppLook.h"
#include "AppWindows.h"
#include "AutostartEntry.h"
#include "Background.h"
#include "BackupService.h"
#include "CommandLine.h"
#include "Compositor.h"
#include "Connection.h"
#include "CountingRecords.h"
#include "DayMarker.h"
#include "DesktopSystemSettings.h"
#include "FreedesktopNotifier.h"
#include "FurtherHolidays.h"
#include "InOfficeCheck.h"
#include "JournalLog.h"
#include "LaunchAtLogin.h"
#include "LocationManager.h"
#include "MessageBoxAlerts.h"
#include "ModelContainer.h"
#include "ModelContext.h"
#include "NetworkManagerAuthorization.h"
#include "NetworkManagerWiFiClient.h"
#include "PelloryApp.h"
#include "PortalAppearance.h"
#include "ProcessSetup.h"
#include "QuitSignals.h"
#include "ScriptService.h"
#include "SingleInstance.h"
#include "StatusNotifierHost.h"
#include "StoreFolder.h"
#include "SystemBus.h"
#include "SystemClock.h"
#include "Translations.h"
#include "UndoHistory.h"
#include "ViewParts.h"
#include "ViewSettings.h"

#include <QApplication>
#include <QLocale>
#include <QLoggingCategory>
#include <QSessionManager>
#include <QSettings>
#include <QStandardPaths>
#include <QTimer>

#include <chrono>
#include <functional>
#include <tuple>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

Q_LOGGING_CATEGORY(logStart, "pellory.start", QtInfoMsg)

// The stages of a start in monotonic time, for benchmarks.
void logStage(const char* stage)
{
    using Milliseconds = std::chrono::duration<double, std::milli>;
    const Milliseconds now = std::chrono::steady_clock::now().time_since_epoch();
    qCDebug(logStart, "%s: %.3f ms", stage, now.count());
}

struct PlatformServices {
    QuitSignals quitSignals;
    SystemClock clock;
    SystemBus systemBus;
    NetworkManagerWiFiClient wifiClient{systemBus};
    FreedesktopNotifier notifier;
    NetworkManagerAuthorization authorization{systemBus};
    DesktopSystemSettings systemSettings;
    AutostartEntry loginItem = AutostartEntry::ofThisProgram();
    PortalAppearance appearance;
    StatusNotifierHost trayHost;
};

// The first check comes after this, so that it does not delay the window.
constexpr auto timeToAppear = 100ms;

// What the application returns when it is to start over with the file on disk.
constexpr int reloads = 1000;

// Not quit(), which first closes every window.
void quit()
{
    QCoreApplication::exit();
}

void openFirstWindow(AppWindows& windows, Background& background, const std::function<void()>& startQuietJobs,
                     PlatformServices& platform, std::jthread& fonts, StartMode mode)
{
    if (fonts.joinable())
        fonts.join();
    logStage("fonts read");
    // What is asked of the desktop can wait until there is something to see.
    const auto afterFirstPaint = [&windows](auto* context, auto start) {
        QObject::connect(&windows, &AppWindows::mainPainted, context, start, Qt::SingleShotConnection);
    };
    afterFirstPaint(&platform.appearance, &Appearance::start);
    afterFirstPaint(&windows, [] { logStage("window painted"); });
    if (mode == StartMode::AtLogin) {
        platform.trayHost.start();
        startQuietJobs();
        background.remindOfSetUp();
    } else {
        afterFirstPaint(&platform.trayHost, &TrayHost::start);
        afterFirstPaint(&windows, startQuietJobs);
        windows.openMain();
        logStage("window built");
    }
}

int runApplication(PelloryApp& pellory, QSettings& settings, AppLook& look, Alerts& alerts, SingleInstance& instance,
                   std::jthread& fonts, StartMode mode)
{
    PlatformServices platform;
    DayMarker marker(pellory.container().mainContext(), platform.clock);
    UndoHistory history(marker);
    CountingRecords counting(marker, pellory.settings());
    BackupService backups(marker, platform.clock);
    FurtherHolidays furtherHolidays(counting, platform.clock);
    InOfficeCheck check({pellory.container(), marker, counting, pellory.settings(), platform.wifiClient,
                         platform.notifier, platform.clock});
    QTimer::singleShot(timeToAppear, &platform.clock, [&check] { check.start(); });

    ViewSettings viewSettings(settings);
    LocationManagerKey locationManager(platform.authorization, platform.systemSettings);
    LaunchAtLogin launchAtLogin(platform.loginItem);
    const ViewParts parts{pellory.container().mainContext(),
                          marker,
                          history,
                          counting,
                          backups,
                          pellory.settings(),
                          viewSettings,
                          platform.clock,
                          platform.wifiClient,
                          locationManager,
                          check,
                          launchAtLogin,
                          hasCompositor};
    AppWindows windows(parts);
    Background background(parts, windows, platform.notifier, platform.trayHost, settings, alerts);
    look.follow(platform.appearance);
    ScriptService scripts({marker, history, counting, pellory.settings(), platform.clock,
                           [&viewSettings] { return viewSettings.weekStart(); }},
                          backups, [&check] { check.checkNow(); });

    QObject::connect(&instance, &SingleInstance::activated, &windows, &AppWindows::openToday);
    QObject::connect(&instance, &SingleInstance::checkRequested, &background, &Background::runCheck);
    QObject::connect(&platform.quitSignals, &QuitSignals::requested, &background, &Background::end);
    QObject::connect(&background, &Background::quitRequested, &windows, quit);
    QObject::connect(&windows, &AppWindows::reloadRequested, &windows, [] { QCoreApplication::exit(reloads); });
    QObject::connect(&backups, &BackupService::storeReplaced, &windows, &AppWindows::reloadRequested);
    QObject::connect(qApp, &QGuiApplication::commitDataRequest, &background, &Background::prepareEnd);
    QObject::connect(&platform.systemSettings, &SystemSettings::cannotOpen, &windows, [&alerts](const QString& advice) {
        alerts.showCritical(QApplication::translate("main", "Location Settings"), advice);
    });
    if (const auto lost = pellory.lostStore())
        windows.offerBackup(*lost);
    const auto startQuietJobs = [&backups, &furtherHolidays, &scripts, &instance] {
        backups.start();
        furtherHolidays.start();
        scripts.start(instance);
    };
    openFirstWindow(windows, background, startQuietJobs, platform, fonts, mode);
    return QApplication::exec();
}

SingleInstance::Request requestFor(StartMode mode)
{
    switch (mode) {
    case StartMode::AtLogin:
        return SingleInstance::Request::None;
    case StartMode::WithCheck:
        return SingleInstance::Request::Check;
    case StartMode::Shown:
        break;
    }
    return SingleInstance::Request::Show;
}

// False if a running program has taken over the request. Throws a FatalStop if one runs that does not answer.
bool claimName(SingleInstance& instance, StartMode mode, Alerts& alerts)
{
    switch (instance.claim(requestFor(mode))) {
    case SingleInstance::Claim::Owned:
        return true;
    case SingleInstance::Claim::HandedOver:
        return false;
    case SingleInstance::Claim::Refused:
        break;
    }
    alerts.showCritical(QApplication::translate("main", "Pellory is running already"),
                        QApplication::translate(
                            "main", "It does not answer. End it, or log out and in again, and start Pellory again."));
    throw FatalStop(u"Pellory is running already and does not answer"_s);
}

// Login starts the program by its autostart entry alone. A session manager would start what it saw running: with a
// window, and also after launch at login was turned off.
void keepOutOfSavedSessions()
{
    const auto refuse = [](QSessionManager& session) { session.setRestartHint(QSessionManager::RestartNever); };
    // Which of them comes depends on what the session manager asks for.
    for (const auto request : {&QGuiApplication::saveStateRequest, &QGuiApplication::commitDataRequest})
        QObject::connect(qApp, request, qApp, refuse, Qt::DirectConnection);
}

QString dataFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
}

int run(SingleInstance& instance)
{
    StartMode mode = readCommandLine(QApplication::arguments());
    // Only now: the constructor of the application removes variables from the environment, which a thread could read.
    std::jthread fonts = mode == StartMode::AtLogin ? std::jthread() : preloadFontConfig();
    installAccessibleRoles();
    QSettings settings;
    AppLook look(settings);
    MessageBoxAlerts alerts;
    // Before anything touches the store, so that a second start shows the window of the first. If they cannot reach
    // each other, the lock of the store keeps them apart.
    if (!claimName(instance, mode, alerts))
        return EXIT_SUCCESS;
    logStage("name owned");
    for (;;) {
        PelloryApp pellory(dataFolder(), alerts);
        logStage("store open");
        const int result = runApplication(pellory, settings, look, alerts, instance, fonts, mode);
        if (result != reloads)
            return result;
        mode = StartMode::Shown;
    }
}

void setApplicationMetadata()
{
    QCoreApplication::setOrganizationName(u"Pellory"_s);
    QCoreApplication::setApplicationName(u"Pellory"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(PELLORY_VERSION));
}

bool asksForText(std::span<char* const> arguments)
{
    return hasOption(arguments, {"-h", "--help", "--help-all", "-v", "--version"});
}

// What is wrong with the arguments too.
int printText(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const Translations translations(QLocale::system().uiLanguages());
    std::ignore = readCommandLine(ownArguments(std::span(argv, static_cast<std::size_t>(argc))));
    return EXIT_SUCCESS;
}

// For which no display is needed either.
int runCommand(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const Translations translations(QLocale::system().uiLanguages());
    const auto request = readCommand(QCoreApplication::arguments());
    if (!request)
        return exitMisuse;
    const SystemClock clock;
    const auto weekStart = [] {
        QSettings settings;
        return ViewSettings(settings).weekStart();
    };
    return runCommand(*request, {storeFileIn(dataFolder()), clock, weekStart});
}

} // namespace

int main(int argc, char* argv[])
{
    limitMallocArenas();
    limitSqliteCache();
    correctUserFolders();
    setApplicationMetadata();
    const std::span arguments(argv, static_cast<std::size_t>(argc));
    if (asksForCommand(arguments) && !asksForText(arguments))
        return runCommand(argc, argv);
    if (asksForText(arguments) || isMisuse(ownArguments(arguments))) // for which no display is needed
        return printText(argc, argv);
    logToJournalIfPresent();
    logStage("program loaded");
    SingleInstance instance;
    QApplication::setStyle(u"Fusion"_s);
    const QApplication application(argc, argv);
    logStage("toolkit ready");
    QApplication::setApplicationDisplayName(u"Pellory"_s);
    QApplication::setDesktopFileName(u"io.github.pellory.Pellory"_s);
    QApplication::setQuitOnLastWindowClosed(false);
    keepOutOfSavedSessions();
    const Translations translations(QLocale::system().uiLanguages());
    try {
        return run(instance);
    } catch (const FatalStop& stop) {
        // No core dump for something that the person can fix.
        qCritical("%s", stop.what());
        return EXIT_FAILURE;
    }
}
