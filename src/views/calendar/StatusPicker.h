// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "AccessLetters.h"
#include "DayState.h"

#include <QMenu>

#include <optional>

/// A menu of all states, each with the keys that set it. It deletes itself when it closes.
class StatusPicker : public QMenu {
    Q_OBJECT

public:
    /// Whether the entries show the modifier keys that set a state in one click.
    enum class ClickKeys { Shown, Hidden };

    /// `current`, if there is one, is checked.
    StatusPicker(std::optional<DayState> current, QWidget* parent, ClickKeys keys = ClickKeys::Shown);

    /// Adds a line above the states that says what they are for. A screen reader says it as the name of the menu.
    void setHeading(const QString& text);

    /// Adds an entry below the states.
    QAction* addEntry(const QString& text);

    /// Opens the menu beside a cell, which is in global coordinates: after it, or before it if there is no room.
    void popUpBeside(const QRect& cell);

Q_SIGNALS:
    void chosen(DayState state);

protected:
    // Below the states.
    QAction* addTicked(const QString& text, bool isTicked);
    QMenu& addSubmenu(const QString& text);
    /// Adds an entry with a tick before it, if it is ticked, to a submenu.
    static QAction* addTicked(QMenu& submenu, const QString& text, bool isTicked);

    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void addState(DayState state, const QString& text);
    [[nodiscard]] QAction* currentAction() const;

    std::optional<DayState> m_current;
    ClickKeys m_clickKeys;
    QList<QAction*> m_states;
    AccessLetters m_letters;
    /// Where the button was pressed that opened the menu, until it is released.
    std::optional<QPoint> m_pressedAt;
};
