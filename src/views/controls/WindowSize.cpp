// SPDX-License-Identifier: GPL-3.0-or-later
#include "WindowSize.h"

#include <QGuiApplication>
#include <QLayout>
#include <QScreen>
#include <QWidget>

namespace {

// The size of a window's frame is not known before the window is shown.
constexpr QSize usualFrame(16, 48);
// With Wayland, programs cannot know where the panels are.
constexpr QSize usualPanel(0, 40);

QSize roomOn(const QScreen& screen)
{
    return roomForWindow(screen.geometry(), screen.availableGeometry());
}

} // namespace

QSize roomForWindow(const QRect& screen, const QRect& available)
{
    return available.size().boundedTo(screen.size() - usualPanel) - usualFrame;
}

void fitToScreen(QWidget& window, QSize wanted)
{
    const QSize room = roomOn(*window.screen());
    const QSize least = window.minimumSizeHint();
    // A layout would see to it, and follow its contents, but would also insist on more than the screen has.
    if (window.layout() == nullptr || least != least.boundedTo(room))
        window.setMinimumSize(least.boundedTo(room));
    window.resize(wanted.boundedTo(room));
}

int widestContents()
{
    constexpr int widestMargin = 32;
    return roomOn(*QGuiApplication::primaryScreen()).width() - 2 * widestMargin;
}
