// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FlatButton.h"
#include "Symbol.h"

#include <QColor>

/// A button that is only a symbol. Its text is what a pointer that rests on it is shown and what assistive technology
/// says.
class IconButton : public FlatButton {
    Q_OBJECT

public:
    IconButton(Symbol symbol, const QString& text, QWidget* parent = nullptr);

    void setSymbol(Symbol symbol);
    [[nodiscard]] Symbol symbol() const { return m_symbol; }
    /// Sets what it says.
    void setHelp(const QString& text);
    /// Draws it paler than text, for where many stand below each other.
    void setQuiet();

    [[nodiscard]] QSize sizeHint() const override;

protected:
    /// By default that of text.
    [[nodiscard]] virtual QColor color() const;

    void paintEvent(QPaintEvent* event) override;

private:
    Symbol m_symbol;
    bool m_quiet = false;
};
