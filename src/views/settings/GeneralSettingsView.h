// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QVBoxLayout;
struct ViewParts;

/// The general settings. Inside the first-run flow there is no button that starts that flow.
class GeneralSettingsView : public QWidget {
    Q_OBJECT

public:
    GeneralSettingsView(const ViewParts& parts, bool welcome, QWidget* parent = nullptr);

Q_SIGNALS:
    void welcomeRequested();

private:
    void addLaunchAtLogin(QVBoxLayout& column, const ViewParts& parts);
};
