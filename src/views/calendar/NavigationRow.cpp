// SPDX-License-Identifier: GPL-3.0-or-later
#include "NavigationRow.h"

#include "CalendarPage.h"
#include "LinkButton.h"

#include <QHBoxLayout>
#include <QKeySequence>

using namespace Qt::StringLiterals;

NavigationRow::NavigationRow(const QString& previousText, const QString& nextText, QWidget* parent)
    : QWidget(parent)
    , m_previous(new LinkButton(previousText, Symbol::LessThan, LinkButton::SymbolSide::Leading))
    , m_next(new LinkButton(nextText, Symbol::GreaterThan, LinkButton::SymbolSide::Trailing))
    , m_today(new LinkButton(tr("Today"), this))
{
    m_previous->setObjectName("previous"_L1);
    m_next->setObjectName("next"_L1);
    m_today->setObjectName("today"_L1);
    m_today->setToolTip(QKeySequence(todayKeys).toString(QKeySequence::NativeText));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->addWidget(m_previous);
    row->addStretch();
    row->addWidget(m_next);
    QSizePolicy policy = m_today->sizePolicy();
    policy.setRetainSizeWhenHidden(true); // or the layout would leave out a gap
    m_today->setSizePolicy(policy);
    connect(m_previous, &QAbstractButton::clicked, this, &NavigationRow::previousRequested);
    connect(m_next, &QAbstractButton::clicked, this, &NavigationRow::nextRequested);
    connect(m_today, &QAbstractButton::clicked, this, &NavigationRow::todayRequested);
}

void NavigationRow::setAvailable(bool previous, bool next)
{
    m_previous->setEnabled(previous);
    m_next->setEnabled(next);
}
