// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "BackupFolder.h"

#include <QDate>
#include <QFutureWatcher>
#include <QObject>
#include <QPointer>

#include <map>
#include <optional>

class ContentView;
class WelcomeView;
struct DaySpan;
struct ViewParts;
enum class LostStore;
enum class WindowId;

/// Opens the windows of the program. Each is built when it is first opened, and deleted when it is closed.
class AppWindows : public QObject {
    Q_OBJECT

public:
    explicit AppWindows(const ViewParts& parts);
    ~AppWindows() override;

    /// Opens the main window, or raises it. Some desktops let a window come to the front only with a token.
    void openMain(const QString& activationToken = {});
    /// Opens the main window at today.
    void openToday(const QString& activationToken = {});
    /// Opens the main window at a day. An invalid date leaves it where it is.
    void openDay(QDate day, const QString& activationToken = {});
    void open(WindowId id);
    /// Opens the window that saves a record, for these days at first.
    void openRecord(const DaySpan& span);
    /// Opens the settings where the usual week is chosen.
    void openUsualWeek();
    /// Starts the first run, over the main window.
    void openWelcome();
    /// To be called before the first window is opened, if the store is new. If there is a sound backup, the main window
    /// offers it before the first run starts.
    void offerBackup(LostStore how) { m_lostStore = how; }

Q_SIGNALS:
    /// The contents of a main window have been drawn for the first time.
    void mainPainted();
    /// The last window has been closed.
    void lastClosed();
    void quitRequested();
    /// The file on disk is to be used instead of what is shown.
    void reloadRequested();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void makeMain();
    void makeWelcome();
    void beginFirstRun();
    void findBackup();
    void showOffer();
    void explainPostponedCheck();
    [[nodiscard]] QWidget* makeWindow(WindowId id);
    [[nodiscard]] QWidget* makeSettings();
    void prepare(QWidget& window, const QString& name, const QString& title, QSize firstSize);
    void addShortcuts(QWidget& window);
    void forget(QObject* window);

    const ViewParts& m_parts;
    QPointer<ContentView> m_main;
    QPointer<WelcomeView> m_welcome;
    std::map<WindowId, QPointer<QWidget>> m_others;
    QList<QWidget*> m_open;
    /// Until a person has decided about a backup.
    std::optional<LostStore> m_lostStore;
    QFutureWatcher<std::optional<BackupFile>> m_finding;
};
