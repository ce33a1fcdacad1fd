// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FocusVisible.h"

#include <QCheckBox>
#include <QProperty>

/// A check box drawn as a switch, with the text first and the switch at the other end of the row. A long text
/// is wrapped.
class Switch : public QCheckBox {
    Q_OBJECT

public:
    explicit Switch(const QString& text, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] int heightForWidth(int width) const override;

protected:
    bool hitButton(const QPoint& position) const override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QSize sizeFor(int width) const;
    void paintTrack(QPainter& painter, const QRectF& track) const;

    FocusVisible m_focusVisible;
};

/// Binds a switch to a field, both ways.
void bindSwitch(Switch* toggle, QProperty<bool>& field);
