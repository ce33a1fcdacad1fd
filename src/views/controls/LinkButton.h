// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FlatButton.h"
#include "Symbol.h"

#include <optional>

/// A flat button in the accent colour: a text, with a symbol or without.
class LinkButton : public FlatButton {
    Q_OBJECT

public:
    enum class SymbolSide { Leading, Trailing };

    explicit LinkButton(const QString& text, QWidget* parent = nullptr);
    LinkButton(const QString& text, Symbol symbol, SymbolSide side, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintSymbol(QPainter& painter, const QRect& place) const;

    std::optional<Symbol> m_symbol;
    SymbolSide m_side = SymbolSide::Leading;
    int m_symbolSize;
};
