// SPDX-License-Identifier: GPL-3.0-or-later
#include "DesktopSystemSettings.h"

#include <QProcess>

using namespace Qt::StringLiterals;

namespace {

struct Page {
    QLatin1StringView desktop;
    QLatin1StringView program;
    QLatin1StringView argument;
};

// KDE has no location page; its network page is the closest.
constexpr Page pages[]{
    {"GNOME"_L1, "gnome-control-center"_L1, "location"_L1},
    {"KDE"_L1, "systemsettings"_L1, "kcm_networkmanagement"_L1},
    {"KDE"_L1, "systemsettings5"_L1, "kcm_networkmanagement"_L1},
};

} // namespace

void DesktopSystemSettings::openLocationSettings()
{
    const QStringList desktops = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':');
    for (const Page& page : pages) {
        if (desktops.contains(page.desktop) && QProcess::startDetached(page.program, {page.argument}))
            return;
    }
    Q_EMIT cannotOpen(tr("No settings page for this could be opened. Ask your administrator to allow you to see Wi-Fi "
                         "networks: the permission is called org.freedesktop.NetworkManager.wifi.scan."));
}
