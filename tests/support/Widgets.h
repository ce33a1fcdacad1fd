// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CommandClickableButton.h"
#include "Eventually.h"

#include <QLabel>
#include <QWindow>

/// The shown button of a day.
inline CommandClickableButton& dayButton(const QWidget& root, int day)
{
    for (auto* button : root.findChildren<CommandClickableButton*>()) {
        if (button->isVisible() && button->text() == QString::number(day))
            return *button;
    }
    qFatal("Day %d is not shown", day);
}

inline QStringList shownTexts(const QWidget& root)
{
    QStringList texts;
    for (const auto* label : root.findChildren<QLabel*>()) {
        if (label->isVisible())
            texts.append(label->text());
    }
    return texts;
}

template <class Control> Control& named(const QWidget& root, const char* name)
{
    return *root.findChild<Control*>(QString::fromLatin1(name));
}

inline QPoint inWindow(const QWidget& widget)
{
    return widget.mapTo(widget.window(), widget.rect().center());
}

// Pointer and keys go through the window, as those of a person do: only what is shown can be hit.

inline void click(const QWidget& target, Qt::KeyboardModifiers held = {}, Qt::MouseButton button = Qt::LeftButton)
{
    QTest::mouseClick(target.window()->windowHandle(), button, held, inWindow(target));
}

inline void moveTo(const QWidget& root, QPoint place)
{
    // A window closed earlier may have left the pointer there, and then this would be no move.
    for (const QPoint step : {place + QPoint(1, 1), place})
        QTest::mouseMove(root.window()->windowHandle(), step);
}

inline void press(const QWidget& root, Qt::Key key, Qt::KeyboardModifiers held = {})
{
    QTest::keyClick(root.window()->windowHandle(), key, held);
}

inline void show(QWidget& window)
{
    window.show();
    window.activateWindow();
    if (!QTest::qWaitForWindowActive(&window))
        qFatal("A window did not become active");
}
