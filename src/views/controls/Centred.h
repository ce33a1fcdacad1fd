// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QBoxLayout>

/// Puts a widget into the middle of a column. An alignment would do so as well, but would have the height of a text
/// that wraps computed for the width of the column.
inline void addCentred(QBoxLayout& column, QWidget* widget)
{
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(widget);
    row->addStretch();
    column.addLayout(row);
}
