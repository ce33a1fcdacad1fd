// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FlatButton.h"
#include "Symbol.h"

/// A flat button with a text and a symbol in the accent colour.
class LinkButton : public FlatButton {
    Q_OBJECT

public:
    enum class SymbolSide { Leading, Trailing };

    LinkButton(const QString& text, Symbol symbol, SymbolSide side, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Symbol m_symbol;
    SymbolSide m_side;
};
