// SPDX-License-Identifier: GPL-3.0-or-later
#include "GeneralSettingsView.h"

#include "AppSettings.h"
#include "Button.h"
#include "Labels.h"
#include "LaunchAtLogin.h"
#include "Switch.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

Switch* addSwitch(QVBoxLayout& column, const QString& text, const QString& help = {})
{
    if (!column.isEmpty())
        column.addSpacing(10);
    auto* toggle = new Switch(text);
    column.addWidget(toggle);
    if (!help.isEmpty()) {
        toggle->setAccessibleDescription(help);
        column.addWidget(labels::dim(help));
    }
    return toggle;
}

void bindLaunchAtLogin(Switch* toggle, LaunchAtLogin& launchAtLogin)
{
    const auto refresh = [&launchAtLogin, toggle] { toggle->setChecked(launchAtLogin.isEnabled()); };
    refresh();
    launchAtLogin.watch(*toggle, refresh);
    // A change is announced before it is made, and can fail. The switch shows what the system says afterwards.
    QObject::connect(&launchAtLogin, &LaunchAtLogin::willChange, toggle, refresh, Qt::QueuedConnection);
    QObject::connect(toggle, &QAbstractButton::toggled, &launchAtLogin, [&launchAtLogin](bool on) {
        if (on != launchAtLogin.isEnabled())
            launchAtLogin.setEnabled(on);
    });
}

} // namespace

GeneralSettingsView::GeneralSettingsView(AppSettings& settings, LaunchAtLogin& launchAtLogin, bool welcome,
                                         QWidget* parent)
    : QWidget(parent)
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(2);
    auto* login =
        addSwitch(*column, tr("Launch at login"), tr("So you don't have to remember to open for automatic tracking"));
    login->setObjectName("launchAtLogin"_L1);
    bindLaunchAtLogin(login, launchAtLogin);
    bindSwitch(addSwitch(*column, tr("Enable notifiations"),
                         tr("Get notified when you're automatically tracked as in or out of office")),
               settings.notificationsEnabled);
    bindSwitch(addSwitch(*column, tr("Vacation days count as in the office")), settings.vacationDaysCountAsInOffice);
    if (welcome)
        return;
    auto* again = new Button(tr("Re-run Welcome Tutorial"));
    again->setObjectName("welcome"_L1);
    column->addSpacing(10);
    column->addWidget(again, 0, Qt::AlignLeft);
    connect(again, &QAbstractButton::clicked, this, &GeneralSettingsView::welcomeRequested);
}
