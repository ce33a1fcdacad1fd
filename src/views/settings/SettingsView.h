// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class AppSettings;
class BackupService;
class Clock;
class CountingRecords;
class InOfficeCheck;
class LaunchAtLogin;
class LazyStack;
class LocationManager;
class ModelContext;
class QVBoxLayout;
class SideTabs;
class ViewSettings;
class WiFiClient;

/// What the pages of the settings show and change.
struct SettingsParts {
    AppSettings& settings;
    WiFiClient& wifiClient;
    LocationManager& locationManager;
    InOfficeCheck& check;
    LaunchAtLogin& launchAtLogin;
    BackupService& backups;
    ModelContext& context;
    CountingRecords& counting;
    Clock& clock;
    ViewSettings& viewSettings;
};

/// The settings: a list of pages at the side, of which one is shown.
class SettingsView : public QWidget {
    Q_OBJECT

public:
    explicit SettingsView(const SettingsParts& parts, QWidget* parent = nullptr);

    /// Turns to the page "Counting", where the usual week is chosen.
    void showUsualWeek();

Q_SIGNALS:
    void welcomeRequested();

protected:
    bool focusNextPrevChild(bool next) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    [[nodiscard]] QWidget* makeSide();
    void addShortcuts();
    void showPage(int index);
    void arrange();
    void addLocationLine(QVBoxLayout& column);
    [[nodiscard]] QWidget* makeGeneralPage();

    const SettingsParts m_parts;
    SideTabs* m_tabs;
    LazyStack* m_pages;
};
