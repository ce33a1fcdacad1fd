// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FocusVisible.h"
#include "Symbol.h"

#include <QTabBar>

struct SymbolLabel;

/// A tab bar drawn as a segmented control. Keys and accessibility are those of a tab bar. Where there is no room, the
/// tabs are as narrow as their texts, without symbols.
class SegmentedTabs : public QTabBar {
    Q_OBJECT

public:
    explicit SegmentedTabs(QWidget* parent = nullptr);

    using QTabBar::addTab;
    /// Adds a tab with a symbol before the text.
    void addTab(Symbol symbol, const QString& text);

protected:
    [[nodiscard]] QSize tabSizeHint(int index) const override;
    [[nodiscard]] QSize minimumTabSizeHint(int index) const override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    /// Ignored: the wheel scrolls the page.
    void wheelEvent(QWheelEvent* event) override;

private:
    [[nodiscard]] SymbolLabel label(int index) const;
    /// If one does not fit, none is shown.
    [[nodiscard]] bool hasRoomForSymbols() const;

    FocusVisible m_focusVisible;
};
