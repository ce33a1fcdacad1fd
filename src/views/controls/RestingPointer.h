// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QTimer>

class QWidget;

/// Lets the pointer enter and leave widgets that move under it, when they are scrolled or laid out anew. By itself the
/// toolkit notices neither before the pointer moves.
class RestingPointer : public QObject {
    Q_OBJECT

public:
    /// Watches the widget, which becomes the parent, and everything it is in.
    explicit RestingPointer(QWidget* widget);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void watchAncestors();
    void sendMove();

    QWidget* m_widget;
    QTimer m_afterLayout;
};
