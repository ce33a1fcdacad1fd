// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <array>

class QLabel;
class QStackedWidget;
class QTabBar;
struct ViewParts;

/// The settings: three pages, each built when it is first shown.
class SettingsView : public QWidget {
    Q_OBJECT

public:
    explicit SettingsView(const ViewParts& parts, QWidget* parent = nullptr);

Q_SIGNALS:
    void welcomeRequested();

private:
    void addLocationLine();
    void showPage(int index);
    [[nodiscard]] QWidget* makePage(int index);

    const ViewParts& m_parts;
    QTabBar* m_tabs;
    QLabel* m_location;
    QStackedWidget* m_pages;
    std::array<QWidget*, 3> m_built{};
};
