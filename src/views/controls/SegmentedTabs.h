// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FocusVisible.h"

#include <QTabBar>

/// A tab bar drawn as a segmented control. Keys and accessibility are those of a tab bar.
class SegmentedTabs : public QTabBar {
    Q_OBJECT

public:
    explicit SegmentedTabs(QWidget* parent = nullptr);

protected:
    [[nodiscard]] QSize tabSizeHint(int index) const override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    /// Ignored: the wheel scrolls the page.
    void wheelEvent(QWheelEvent* event) override;

private:
    FocusVisible m_focusVisible;
};
