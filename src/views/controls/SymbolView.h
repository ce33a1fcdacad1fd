// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Symbol.h"

#include <QWidget>

/// A symbol beside a text that explains it.
class SymbolView : public QWidget {
    Q_OBJECT

public:
    explicit SymbolView(Symbol symbol, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Symbol m_symbol;
};
