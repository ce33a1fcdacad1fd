// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMainWindow>

#include <array>

class QScrollArea;
class QStackedWidget;
class QTabBar;
struct ViewParts;

/// The window with the month and the quarter. Each of them is built when it is first shown.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit MainWindow(const ViewParts& parts);
    ~MainWindow() override;

Q_SIGNALS:
    /// The window has drawn its contents for the first time.
    void painted();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    [[nodiscard]] QWidget* makeHeader();
    void showTab(int index);
    [[nodiscard]] QScrollArea* makePage(int index);
    void keepInSight(QWidget* focused);

    const ViewParts& m_parts;
    QTabBar* m_tabs;
    QStackedWidget* m_pages;
    std::array<QScrollArea*, 2> m_built{};
    bool m_painted = false;
};
