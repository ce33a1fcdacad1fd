// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <array>

class QScrollArea;
class QStackedWidget;
class QTabBar;
struct ViewParts;

/// The contents of the main window: the month and the quarter, each built when it is first shown.
class ContentView : public QWidget {
    Q_OBJECT

public:
    explicit ContentView(const ViewParts& parts, QWidget* parent = nullptr);
    ~ContentView() override;

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
