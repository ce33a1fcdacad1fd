// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FocusVisible.h"
#include "Symbol.h"

#include <QPushButton>

#include <optional>

struct SymbolLabel;

/// A push button in the program's look. Default and prominent buttons are filled.
class Button : public QPushButton {
    Q_OBJECT

public:
    explicit Button(const QString& text, QWidget* parent = nullptr);

    void setProminent(bool prominent);
    /// Draws a symbol before the text, or none.
    void setSymbol(std::optional<Symbol> symbol);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] SymbolLabel label() const;

    std::optional<Symbol> m_symbol;
    bool m_prominent = false;
    FocusVisible m_focusVisible;
};
