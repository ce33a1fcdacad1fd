// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QWidget>

#include <array>

class QHBoxLayout;
class LocationAlert;
class Page;
class QStackedWidget;
class QTabBar;
class QVBoxLayout;
class TrackingStatus;
struct ViewParts;
enum class WindowId;

/// The contents of the main window: the month and the quarter, each built when it is first shown.
class ContentView : public QWidget {
    Q_OBJECT

public:
    explicit ContentView(const ViewParts& parts, QWidget* parent = nullptr);

    /// Shows a day, in the tab that is shown, and gives it the focus.
    void showDay(QDate date);

Q_SIGNALS:
    /// A button of the toolbar wants another window.
    void windowRequested(WindowId id);
    /// The window has drawn its contents for the first time.
    void painted();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    [[nodiscard]] QWidget* makeHeader();
    void addToolbar(QHBoxLayout& row);
    void addShortcuts();
    void alertIfNeeded();
    void turnPage(Qt::Key key);
    void showTab(int index);
    [[nodiscard]] Page* makePage(int index);

    const ViewParts& m_parts;
    TrackingStatus* m_status;
    QVBoxLayout* m_column;
    LocationAlert* m_alert = nullptr;
    QTabBar* m_tabs;
    QStackedWidget* m_pages;
    std::array<Page*, 2> m_built{};
    bool m_painted = false;
};
