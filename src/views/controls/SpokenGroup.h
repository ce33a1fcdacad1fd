// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FocusVisible.h"

#include <QPointer>
#include <QWidget>

/// A group of widgets that show something. Tab reaches the group, so that a screen reader can say it as a whole.
class SpokenGroup : public QWidget {
    Q_OBJECT

public:
    /// Room for the focus ring, which the layout leaves around the contents.
    static constexpr int ringRoom = 5;

    /// The focus ring stays this far from the sides.
    explicit SpokenGroup(int ringInset = 0, QWidget* parent = nullptr);

    /// Sets what is said: the title, then the texts.
    void setSpokenText(const QString& title, const QStringList& texts);
    /// Lets a person press the group like a button: with a key, or a click on `target`, which is the group or a part of
    /// it. Without a target it cannot be pressed.
    void setPressable(QWidget* target);

Q_SIGNALS:
    void pressed();

protected:
    /// Draws the ground of what is under the pointer and can be pressed.
    void paintGround(QPainter& painter) const;

    bool eventFilter(QObject* watched, QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] bool press(const QEvent& event);
    void setHovered(bool isHovered);

    int m_ringInset;
    FocusVisible m_focusVisible;
    QPointer<QWidget> m_target;
    bool m_isHovered = false;
    bool m_isDown = false;
};
