// SPDX-License-Identifier: GPL-3.0-or-later
#include "HelpView.h"

#include "LegendView.h"

#include <QVBoxLayout>

HelpView::HelpView(ViewSettings& settings, QWidget* parent)
    : QWidget(parent)
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addWidget(new LegendView(settings));
}
