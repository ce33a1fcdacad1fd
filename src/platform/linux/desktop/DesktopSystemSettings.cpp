// SPDX-License-Identifier: GPL-3.0-or-later
#include "DesktopSystemSettings.h"

#include <QProcess>

using namespace Qt::StringLiterals;

namespace {

struct Page {
    QLatin1StringView desktop;
    QString program;
    QStringList arguments;
};

// KDE has no page for the location; its network page is the nearest to what is missing.
const Page pages[]{
    {"GNOME"_L1, u"gnome-control-center"_s, {u"location"_s}},
    {"KDE"_L1, u"systemsettings"_s, {u"kcm_networkmanagement"_s}},
    {"KDE"_L1, u"systemsettings5"_s, {u"kcm_networkmanagement"_s}},
};

} // namespace

void DesktopSystemSettings::openLocationSettings()
{
    const QStringList desktops = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':');
    for (const Page& page : pages) {
        if (desktops.contains(page.desktop) && QProcess::startDetached(page.program, page.arguments))
            return;
    }
    Q_EMIT cannotOpen(tr("No settings page for it could be opened. Whoever administers this computer can let you see "
                         "Wi-Fi networks: the permission is called org.freedesktop.NetworkManager.wifi.scan."));
}
