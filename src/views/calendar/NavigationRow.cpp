// SPDX-License-Identifier: GPL-3.0-or-later
#include "NavigationRow.h"

#include "LinkButton.h"

#include <QHBoxLayout>

using namespace Qt::StringLiterals;

NavigationRow::NavigationRow(const QString& previousText, const QString& nextText, QWidget* parent)
    : QWidget(parent)
    , m_previous(new LinkButton(previousText, Symbol::LessThan, LinkButton::SymbolSide::Leading))
    , m_next(new LinkButton(nextText, Symbol::GreaterThan, LinkButton::SymbolSide::Trailing))
{
    m_previous->setObjectName("previous"_L1);
    m_next->setObjectName("next"_L1);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(20, 0, 20, 0);
    row->addWidget(m_previous);
    row->addStretch();
    row->addWidget(m_next);
    connect(m_previous, &QAbstractButton::clicked, this, &NavigationRow::previousRequested);
    connect(m_next, &QAbstractButton::clicked, this, &NavigationRow::nextRequested);
}

void NavigationRow::setAvailable(bool previous, bool next)
{
    m_previous->setEnabled(previous);
    m_next->setEnabled(next);
}
