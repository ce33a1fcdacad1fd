// SPDX-License-Identifier: GPL-3.0-or-later
#include "Accessibility.h"
#include "AppWindows.h"
#include "AutostartEntry.h"
#include "Background.h"
#include "CommandLine.h"
#include "DesktopSystemSettings.h"
#include "FreedesktopNotifier.h"
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
#include "SingleInstance.h"
#include "StatusNotifierHost.h"
#include "SystemClock.h"
#include "Theme.h"
#include "Translations.h"
#include "ViewParts.h"
#include "ViewSettings.h"

#include <QApplication>
#include <QLocale>
#include <QLoggingCategory>
#include <QSettings>
#include <QStandardPaths>

#include <chrono>
#include <tuple>

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(logStart, "pellory.start", QtInfoMsg)

// For whoever measures a start: the time is that of the monotonic clock.
void logReached(const char* stage)
{
    using Milliseconds = std::chrono::duration<double, std::milli>;
    const Milliseconds now = std::chrono::steady_clock::now().time_since_epoch();
    qCDebug(logStart, "%s: %.3f ms", stage, now.count());
}

// The desktop tells its colour scheme only after the window has been drawn: until then the last one holds.
const auto lastSchemeIsDark = u"appearanceLastSchemeIsDark"_s;

void wear(ColorScheme scheme)
{
    QApplication::setPalette(paletteFor(scheme));
}

void wearLastScheme(const QSettings& settings)
{
    const bool desktopIsDark = colorSchemeOf(QApplication::palette()) == ColorScheme::Dark;
    wear(settings.value(lastSchemeIsDark, desktopIsDark).toBool() ? ColorScheme::Dark : ColorScheme::Light);
}

void followColorScheme(Appearance& appearance, QSettings& settings)
{
    QObject::connect(&appearance, &Appearance::colorSchemeReported, &appearance, [&settings](ColorScheme scheme) {
        if (scheme == colorSchemeOf(QApplication::palette()))
            return;
        wear(scheme);
        settings.setValue(lastSchemeIsDark, scheme == ColorScheme::Dark);
    });
}

// What the program knows of the computer that it runs on.
struct Computer {
    QuitSignals quitSignals;
    SystemClock clock;
    NetworkManagerWiFiClient wifiClient;
    FreedesktopNotifier notifier;
    NetworkManagerAuthorization authorization;
    DesktopSystemSettings systemSettings;
    AutostartEntry loginItem = AutostartEntry::ofThisProgram();
    PortalAppearance appearance;
    StatusNotifierHost trayHost;
};

// Not quit(), which closes the windows first and lets each of them have its say.
void quit()
{
    QCoreApplication::exit();
}

int work(PelloryApp& pellory, QSettings& settings, Alerts& alerts, SingleInstance& instance, Start start)
{
    Computer computer;
    InOfficeCheck check(
        {pellory.container(), pellory.settings(), computer.wifiClient, computer.notifier, computer.clock});
    QMetaObject::invokeMethod(
        &computer.clock, [&check] { check.start(); }, Qt::QueuedConnection);

    ViewSettings viewSettings(settings);
    LocationManagerKey locationManager(computer.authorization, computer.systemSettings);
    LaunchAtLogin launchAtLogin(computer.loginItem);
    ModelContext& context = pellory.container().mainContext();
    const ViewParts parts{context,        pellory.settings(),  viewSettings,
                          computer.clock, computer.wifiClient, locationManager,
                          check,          launchAtLogin};
    AppWindows windows(parts);
    Background background(parts, windows, computer.notifier, computer.trayHost, settings);
    followColorScheme(computer.appearance, settings);

    QObject::connect(&instance, &SingleInstance::activated, &windows, &AppWindows::openMain);
    QObject::connect(&instance, &SingleInstance::checkRequested, &background, &Background::runCheck);
    QObject::connect(&computer.quitSignals, &QuitSignals::requested, &windows, quit);
    QObject::connect(&background, &Background::quitRequested, &windows, quit);
    QObject::connect(&windows, &AppWindows::quitRequested, &windows, quit);
    QObject::connect(qApp, &QGuiApplication::commitDataRequest, &windows, [&context] { context.save(); });
    QObject::connect(&computer.systemSettings, &SystemSettings::cannotOpen, &windows, [&alerts](const QString& advice) {
        alerts.showCritical(QApplication::translate("main", "Location Settings"), advice);
    });
    if (start == Start::AtLogin) {
        computer.trayHost.start();
    } else {
        // What is asked of the desktop can wait until there is something to see.
        QObject::connect(&windows, &AppWindows::mainPainted, &computer.trayHost, &TrayHost::start,
                         Qt::SingleShotConnection);
        windows.openMain();
        logReached("window built");
    }
    QObject::connect(&windows, &AppWindows::mainPainted, &computer.appearance, &Appearance::start,
                     Qt::SingleShotConnection);
    QObject::connect(
        &windows, &AppWindows::mainPainted, &windows, [] { logReached("window painted"); }, Qt::SingleShotConnection);
    return QApplication::exec();
}

SingleInstance::Errand errandOf(Start start)
{
    switch (start) {
    case Start::AtLogin:
        return SingleInstance::Errand::None;
    case Start::WithCheck:
        return SingleInstance::Errand::Check;
    case Start::Shown:
        break;
    }
    return SingleInstance::Errand::Show;
}

int run(SingleInstance& instance)
{
    const Start start = readCommandLine(QApplication::arguments());
    // Not earlier: what makes the application takes variables out of the environment.
    std::jthread fonts = start == Start::AtLogin ? std::jthread() : preloadFontConfig();
    installAccessibleRoles();
    QSettings settings;
    wearLastScheme(settings);
    MessageBoxAlerts alerts;
    // Before anything touches the store: two programs would each hold their own copies of the records.
    switch (instance.claim(errandOf(start))) {
    case SingleInstance::Claim::Owned:
        break;
    case SingleInstance::Claim::HandedOver:
        return EXIT_SUCCESS;
    case SingleInstance::Claim::Refused:
        alerts.showCritical(
            QApplication::translate("main", "Pellory is running already"),
            QApplication::translate("main", "It does not answer. End it, or log out and in again, and start anew."));
        throw FatalStop(u"Pellory is running already and does not answer"_s);
    }
    logReached("name owned");
    PelloryApp pellory(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation), alerts);
    logReached("store open");
    if (fonts.joinable())
        fonts.join();
    logReached("fonts read");
    return work(pellory, settings, alerts, instance, start);
}

void introduce()
{
    QCoreApplication::setOrganizationName(u"Pellory"_s);
    QCoreApplication::setApplicationName(u"Pellory"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(PELLORY_VERSION));
}

// A text can be had without a display.
bool isTextWanted(std::span<char* const> arguments)
{
    return hasOption(arguments, {"-h", "--help", "--help-all", "-v", "--version"});
}

int printText(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const Translations translations(QLocale::system().uiLanguages());
    std::ignore = readCommandLine(QCoreApplication::arguments());
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char* argv[])
{
    limitMallocArenas();
    introduce();
    const std::span arguments(argv, static_cast<std::size_t>(argc));
    if (isTextWanted(arguments))
        return printText(argc, argv);
    logToJournalIfPresent();
    logReached("program loaded");
    SingleInstance instance;
    QApplication::setStyle(u"Fusion"_s);
    const QApplication application(argc, argv);
    logReached("toolkit ready");
    QApplication::setApplicationDisplayName(u"Pellory"_s);
    QApplication::setDesktopFileName(u"io.github.pellory.Pellory"_s);
    QApplication::setQuitOnLastWindowClosed(false);
    const Translations translations(QLocale::system().uiLanguages());
    try {
        return run(instance);
    } catch (const FatalStop& stop) {
        // Something that the person can mend ends the program without a core dump.
        qCritical("%s", stop.what());
        return EXIT_FAILURE;
    }
}
