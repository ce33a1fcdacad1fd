// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FocusVisible.h"

#include <QAbstractButton>

/// A button without a face of its own until the pointer is over it or the focus is on it.
class FlatButton : public QAbstractButton {
    Q_OBJECT

public:
    explicit FlatButton(QWidget* parent = nullptr);

protected:
    void focusInEvent(QFocusEvent* event) override;
    /// Draws what is behind the button's symbol and words.
    void paintFace(QPainter& painter, const QColor& hovered) const;

private:
    FocusVisible m_focusVisible;
};
