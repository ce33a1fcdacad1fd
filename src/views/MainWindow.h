// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMainWindow>

class QStackedWidget;
class QTabBar;
struct ViewParts;

/// The window with the month and the quarter. Each of them is built when it is first shown.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit MainWindow(const ViewParts& parts);

Q_SIGNALS:
    /// The window has drawn its contents for the first time.
    void painted();

protected:
    bool event(QEvent* event) override;

private:
    [[nodiscard]] QWidget* makeHeader();
    void showTab(int index);
    [[nodiscard]] QWidget* makePage(int index);

    const ViewParts& m_parts;
    QTabBar* m_tabs;
    QStackedWidget* m_pages;
    QWidget* m_built[2]{};
    bool m_painted = false;
};
