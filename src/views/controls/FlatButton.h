// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FocusVisible.h"

#include <QAbstractButton>

/// A button whose background and border show only under the pointer and with the focus.
class FlatButton : public QAbstractButton {
    Q_OBJECT

public:
    explicit FlatButton(QWidget* parent = nullptr);
    /// For a button that opens a popup, which takes the pointer: the button would not be told that the pointer leaves.
    void forgetPointer();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    /// Draws the background and the focus ring.
    void paintFace(QPainter& painter, const QColor& hovered) const;

private:
    FocusVisible m_focusVisible;
};
