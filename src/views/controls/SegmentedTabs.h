// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FocusVisible.h"

#include <QTabBar>

/// A tab bar drawn as one control with a raised segment. Its keys and its meaning to assistive technology are those of
/// a tab bar.
class SegmentedTabs : public QTabBar {
    Q_OBJECT

public:
    explicit SegmentedTabs(QWidget* parent = nullptr);

protected:
    [[nodiscard]] QSize tabSizeHint(int index) const override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    /// The wheel is for scrolling.
    void wheelEvent(QWheelEvent* event) override;

private:
    FocusVisible m_focusVisible;
};
