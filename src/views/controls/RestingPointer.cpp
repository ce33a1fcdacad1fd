// SPDX-License-Identifier: GPL-3.0-or-later
#include "RestingPointer.h"

#include <QApplication>
#include <QCursor>
#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

#include <chrono>

using namespace std::chrono_literals;

RestingPointer::RestingPointer(QWidget* widget)
    : QObject(widget)
    , m_widget(widget)
{
    m_afterLayout.setSingleShot(true);
    m_afterLayout.setInterval(0ms);
    connect(&m_afterLayout, &QTimer::timeout, this, &RestingPointer::sendMove);
    widget->installEventFilter(this);
}

bool RestingPointer::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_widget && event->type() == QEvent::Show)
        watchAncestors();
    else if (event->type() == QEvent::Move || event->type() == QEvent::Resize)
        m_afterLayout.start();
    return false;
}

void RestingPointer::watchAncestors()
{
    for (QWidget* ancestor = m_widget->parentWidget(); ancestor != nullptr; ancestor = ancestor->parentWidget())
        ancestor->installEventFilter(this); // which has no effect the second time
}

void RestingPointer::sendMove()
{
    QWidget* window = m_widget->window();
    if (!window->underMouse() || QGuiApplication::mouseButtons() != Qt::NoButton ||
        QApplication::activePopupWidget() != nullptr)
        return;
    const QPoint place = QCursor::pos();
    QMouseEvent move(QEvent::MouseMove, window->mapFromGlobal(place), place, Qt::NoButton, Qt::NoButton,
                     QGuiApplication::keyboardModifiers());
    QCoreApplication::sendEvent(window->windowHandle(), &move);
}
