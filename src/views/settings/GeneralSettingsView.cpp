// SPDX-License-Identifier: GPL-3.0-or-later
#include "GeneralSettingsView.h"

#include "AppSettings.h"
#include "Button.h"
#include "Labels.h"
#include "LaunchAtLogin.h"
#include "Switch.h"
#include "ViewParts.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

Switch* addSwitch(QVBoxLayout& column, const QString& text, const QString& help = {})
{
    auto* toggle = new Switch(text);
    column.addWidget(toggle);
    if (!help.isEmpty()) {
        toggle->setAccessibleDescription(help);
        column.addWidget(labels::dim(help));
    }
    column.addSpacing(10);
    return toggle;
}

} // namespace

GeneralSettingsView::GeneralSettingsView(const ViewParts& parts, bool welcome, QWidget* parent)
    : QWidget(parent)
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(2);
    addLaunchAtLogin(*column, parts);
    bindSwitch(addSwitch(*column, tr("Enable notifiations"),
                         tr("Get notified when you're automatically tracked as in or out of office")),
               parts.settings.notificationsEnabled);
    bindSwitch(addSwitch(*column, tr("Vacation days count as in the office")),
               parts.settings.vacationDaysCountAsInOffice);
    if (welcome)
        return;
    auto* again = new Button(tr("Re-run Welcome Tutorial"));
    again->setObjectName("welcome"_L1);
    column->addWidget(again, 0, Qt::AlignLeft);
    connect(again, &QAbstractButton::clicked, this, &GeneralSettingsView::welcomeRequested);
}

void GeneralSettingsView::addLaunchAtLogin(QVBoxLayout& column, const ViewParts& parts)
{
    LaunchAtLogin& launchAtLogin = parts.launchAtLogin;
    auto* toggle =
        addSwitch(column, tr("Launch at login"), tr("So you don't have to remember to open for automatic tracking"));
    toggle->setObjectName("launchAtLogin"_L1);
    toggle->setChecked(launchAtLogin.isEnabled());
    // The change is announced before it is made; what the switch shows is what the system says after it.
    connect(
        &launchAtLogin, &LaunchAtLogin::willChange, toggle,
        [&launchAtLogin, toggle] { toggle->setChecked(launchAtLogin.isEnabled()); }, Qt::QueuedConnection);
    connect(toggle, &QAbstractButton::toggled, &launchAtLogin, [&launchAtLogin](bool on) {
        if (on != launchAtLogin.isEnabled())
            launchAtLogin.setEnabled(on);
    });
}
