// SPDX-License-Identifier: GPL-3.0-or-later
#include "CountingCard.h"

#include "CountingTexts.h"
#include "Labels.h"

#include <QVBoxLayout>

CountingCard::CountingCard(const QString& heading, const QString& help, QWidget* parent)
    : QWidget(parent)
    , m_column(new QVBoxLayout(this))
    , m_problem(labels::error({}))
{
    m_column->setContentsMargins({});
    m_column->setSpacing(8);
    m_column->addWidget(labels::heading(heading));
    if (!help.isEmpty())
        m_column->addWidget(labels::dim(help));
    m_problem->setParent(this);
    m_problem->hide();
}

void CountingCard::addProblemLine()
{
    m_column->addWidget(m_problem);
}

void CountingCard::showProblem(const QString& problem)
{
    m_problem->setText(problem);
    m_problem->setVisible(!problem.isEmpty());
}

bool CountingCard::report(bool isStored)
{
    showProblem(isStored ? QString() : counting_texts::notStored());
    return isStored;
}
