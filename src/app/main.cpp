// SPDX-License-Identifier: GPL-3.0-or-later
#include "Accessibility.h"
#include "ContentView.h"
#include "DesktopSystemSettings.h"
#include "FreedesktopNotifier.h"
#include "InOfficeCheck.h"
#include "JournalLog.h"
#include "LocationManager.h"
#include "MessageBoxAlerts.h"
#include "ModelContainer.h"
#include "NetworkManagerAuthorization.h"
#include "NetworkManagerWiFiClient.h"
#include "PelloryApp.h"
#include "PortalAppearance.h"
#include "SystemClock.h"
#include "Theme.h"
#include "ViewParts.h"
#include "ViewSettings.h"

#include <QApplication>
#include <QSettings>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

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

int run()
{
    installAccessibleRoles();
    QSettings settings;
    wearLastScheme(settings);
    MessageBoxAlerts alerts;
    PelloryApp pellory(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation), alerts);

    SystemClock clock;
    NetworkManagerWiFiClient wifiClient;
    FreedesktopNotifier notifier;
    InOfficeCheck check({pellory.container(), pellory.settings(), wifiClient, notifier, clock});
    QMetaObject::invokeMethod(
        &clock, [&check] { check.start(); }, Qt::QueuedConnection);

    ViewSettings viewSettings(settings);
    NetworkManagerAuthorization authorization;
    DesktopSystemSettings systemSettings;
    LocationManagerKey locationManager(authorization, systemSettings);
    const ViewParts parts{
        pellory.container().mainContext(), pellory.settings(), viewSettings, clock, wifiClient, locationManager};
    ContentView window(parts);
    PortalAppearance appearance;
    followColorScheme(appearance, settings);
    QObject::connect(&window, &ContentView::painted, &appearance, &Appearance::start);
    window.show();
    return QApplication::exec();
}

} // namespace

int main(int argc, char* argv[])
{
    logToJournalIfPresent();
    QApplication::setStyle(u"Fusion"_s);
    const QApplication application(argc, argv);
    QApplication::setOrganizationName(u"Pellory"_s);
    QApplication::setApplicationName(u"Pellory"_s);
    QApplication::setApplicationDisplayName(u"Pellory"_s);
    QApplication::setDesktopFileName(u"io.github.pellory.Pellory"_s);
    try {
        return run();
    } catch (const FatalStop& stop) {
        // Something that the person can mend ends the program without a core dump.
        qCritical("%s", stop.what());
        return EXIT_FAILURE;
    }
}
