// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FlatButton.h"
#include "Symbol.h"

#include <QColor>

/// A button that is only a symbol. Its text is the tooltip and the accessible name.
class IconButton : public FlatButton {
    Q_OBJECT

public:
    IconButton(Symbol symbol, const QString& text, QWidget* parent = nullptr);

    void setSymbol(Symbol symbol);
    [[nodiscard]] Symbol symbol() const { return m_symbol; }
    /// Sets the tooltip and the accessible name.
    void setHelp(const QString& text);
    /// Draws the symbol in the dimmed text colour, for lists of many such buttons.
    void setQuiet();

    [[nodiscard]] QSize sizeHint() const override;

protected:
    /// The colour of the symbol: by default that of text.
    [[nodiscard]] virtual QColor color() const;

    void paintEvent(QPaintEvent* event) override;

private:
    Symbol m_symbol;
    bool m_quiet = false;
};
