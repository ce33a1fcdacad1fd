// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FocusVisible.h"

#include <QCheckBox>
#include <QProperty>

/// A check box drawn as a switch: its text leads, and the switch stands at the far end.
class Switch : public QCheckBox {
    Q_OBJECT

public:
    explicit Switch(const QString& text, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool hitButton(const QPoint& position) const override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void paintTrack(QPainter& painter, const QRectF& track) const;

    FocusVisible m_focusVisible;
};

/// Makes a switch show a field, and set it when it is toggled.
void bindSwitch(Switch* toggle, QProperty<bool>& field);
