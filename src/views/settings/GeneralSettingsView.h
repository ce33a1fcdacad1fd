// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class AppSettings;
class LaunchAtLogin;

/// The general settings. In the first run they lack the button that starts the first run again.
class GeneralSettingsView : public QWidget {
    Q_OBJECT

public:
    GeneralSettingsView(AppSettings& settings, LaunchAtLogin& launchAtLogin, bool welcome, QWidget* parent = nullptr);

Q_SIGNALS:
    void welcomeRequested();
};
