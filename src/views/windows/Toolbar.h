// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QAction;
class QKeySequence;
class QMenu;
enum class WindowId;

/// The buttons at the end of the main window's header, and the menu of the last. The keys that the menu shows are those
/// of the window.
class Toolbar : public QWidget {
    Q_OBJECT

public:
    explicit Toolbar(QWidget* parent = nullptr);

Q_SIGNALS:
    void windowRequested(WindowId id);
    void undoRequested();
    void redoRequested();
    void quitRequested();
    /// The menu is about to open. Entries for what is shown belong at its end.
    void menuOpening(QMenu& menu);

private:
    void popUpMenu(QWidget& button);
    [[nodiscard]] QMenu* makeMenu();
};
