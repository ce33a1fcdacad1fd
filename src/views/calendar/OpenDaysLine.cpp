// SPDX-License-Identifier: GPL-3.0-or-later
#include "OpenDaysLine.h"

#include "Labels.h"
#include "LinkButton.h"

#include <QLayout>

using namespace Qt::StringLiterals;

OpenDaysLine::OpenDaysLine(QWidget* parent)
    : ButtonRow(Qt::AlignLeft, parent)
    , m_text(labels::announced(labels::singleLine(labels::text({}))))
{
    auto* review = new LinkButton(tr("Review"));
    review->setObjectName("reviewOpenDays"_L1);
    connect(review, &QAbstractButton::clicked, this, &OpenDaysLine::reviewRequested);
    add(m_text);
    add(review);
    layout()->setContentsMargins(0, 0, 0, 8); // to the headline of the tracker
}

void OpenDaysLine::setCount(int days, bool another)
{
    const bool wasVisible = m_text->isVisible();
    m_text->setText(days == 1 ? tr("1 past workday is unmarked") : tr("%n past workdays are unmarked", nullptr, days));
    show();
    if (wasVisible && another)
        announce(*m_text, m_text->text());
}
