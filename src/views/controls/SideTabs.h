// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FocusVisible.h"
#include "Symbol.h"

#include <QTabBar>

/// The tabs of a window one below the other, each with a symbol and a name. Accessibility is that of a tab bar.
class SideTabs : public QTabBar {
    Q_OBJECT

public:
    explicit SideTabs(QWidget* parent = nullptr);

    void addTab(Symbol symbol, const QString& name);
    /// For narrow windows: without names, which the tool tips then show.
    void setNamesShown(bool shown);
    [[nodiscard]] int widthWithNames() const;

protected:
    [[nodiscard]] QSize tabSizeHint(int index) const override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    /// Ignored: the wheel scrolls the page.
    void wheelEvent(QWheelEvent* event) override;

private:
    void paintTab(QPainter& painter, int index, const QRect& area) const;
    [[nodiscard]] int symbolSize() const;

    bool m_namesShown = true;
    FocusVisible m_focusVisible;
};
