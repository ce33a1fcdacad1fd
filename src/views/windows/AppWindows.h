// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QObject>
#include <QPointer>

#include <map>

class ContentView;
class WelcomeView;
struct ViewParts;
enum class WindowId;

/// Opens the windows of the program. None is built before it is wanted, and one that is closed is gone.
class AppWindows : public QObject {
    Q_OBJECT

public:
    explicit AppWindows(const ViewParts& parts);
    ~AppWindows() override;

    /// Shows the main window, wherever it is. With a token of the desktop it may come to the front where that is not
    /// for everybody.
    void openMain(const QString& activationToken = {});
    /// Shows a day in it; an invalid one is no day in particular.
    void openDay(QDate day, const QString& activationToken = {});
    void open(WindowId id);
    void openWelcome();

Q_SIGNALS:
    /// A main window has drawn its contents for the first time.
    void mainPainted();
    /// The last window has been closed.
    void lastClosed();
    void quitRequested();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void makeMain();
    [[nodiscard]] QWidget* makeWindow(WindowId id);
    void prepare(QWidget& window, const QString& name, const QString& title, QSize firstSize);
    void addShortcuts(QWidget& window);
    void forget(QObject* window);

    const ViewParts& m_parts;
    QPointer<ContentView> m_main;
    QPointer<WelcomeView> m_welcome;
    std::map<WindowId, QPointer<QWidget>> m_others;
    QList<QWidget*> m_open;
};
