// SPDX-License-Identifier: GPL-3.0-or-later
#include "WelcomeView.h"

#include "Accessibility.h"
#include "Bar.h"
#include "Button.h"
#include "FocusOrder.h"
#include "Labels.h"
#include "StepDots.h"
#include "WindowSize.h"

#include <QGridLayout>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize firstSize(540, 720);

} // namespace

WelcomeView::WelcomeView(std::vector<LazyStack::PageBuilder> steps, QWidget* parent)
    : QDialog(parent)
    , m_steps(new LazyStack(std::move(steps)))
    , m_lastStep(m_steps->pageCount() - 1)
    , m_message(labels::announced(labels::text({})))
    , m_dots(new StepDots(m_steps->pageCount()))
    , m_skip(new Button(tr("Skip")))
    , m_back(new Button(tr("Back")))
    , m_next(new Button({}))
{
    setAccessibleRole(*this, QAccessible::Dialog);
    setWindowTitle(tr("Welcome to Pellory"));
    setWindowModality(Qt::WindowModal);
    setAttribute(Qt::WA_DeleteOnClose);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(m_steps);
    column->addWidget(m_message);
    column->addWidget(makeFooter());
    m_message->setObjectName("message"_L1);
    m_message->setContentsMargins(32, 10, 32, 10);
    showStep(0);
    fitToScreen(*this, firstSize);
}

bool WelcomeView::focusNextPrevChild(bool next)
{
    return moveFocus(*this, next);
}

QWidget* WelcomeView::makeFooter()
{
    m_skip->setObjectName("skip"_L1);
    m_back->setObjectName("back"_L1);
    m_next->setObjectName("next"_L1);
    m_next->setDefault(true);
    auto* onward = new QHBoxLayout;
    onward->setSpacing(10);
    onward->addWidget(m_back);
    onward->addWidget(m_next);
    auto* footer = new Bar(Qt::TopEdge);
    auto* row = new QGridLayout(footer);
    row->setContentsMargins(32, 12, 32, 12);
    row->addWidget(m_skip, 0, 0, Qt::AlignLeft);
    row->addWidget(m_dots, 0, 1, Qt::AlignCenter);
    row->addLayout(onward, 0, 2, Qt::AlignRight);
    row->setColumnStretch(0, 1);
    row->setColumnStretch(2, 1);
    connect(m_skip, &QAbstractButton::clicked, this, [this] { showStep(m_lastStep); });
    connect(m_back, &QAbstractButton::clicked, this, [this] { showStep(m_step - 1); });
    connect(m_next, &QAbstractButton::clicked, this, &WelcomeView::advance);
    return footer;
}

void WelcomeView::showStep(int step)
{
    m_step = step;
    const bool isLast = step == m_lastStep;
    // The last step sums up what is set now.
    if (isLast)
        m_steps->discardPage(step);
    m_steps->showPage(step);
    m_message->hide();
    m_dots->setCurrent(step);
    m_back->setEnabled(step > 0);
    m_skip->setEnabled(!isLast);
    m_next->setText(isLast ? tr("Done") : tr("Next"));
    m_next->setFocus(Qt::OtherFocusReason);
    if (isVisible())
        announceStep();
}

void WelcomeView::announceStep()
{
    // The focus stays on the button that leads on, which says nothing of the new step.
    if (const auto* step = m_steps->currentWidget()->findChild<QWidget*>("step"_L1))
        announce(*this,
                 u"%1. %2. %3"_s.arg(m_dots->accessibleName(), step->accessibleName(), step->accessibleDescription()));
}

void WelcomeView::advance()
{
    if (m_step < m_lastStep)
        showStep(m_step + 1);
    else
        accept();
}

void WelcomeView::showMessage(const QString& message)
{
    m_message->setText(message);
    m_message->show();
}

void WelcomeView::reject()
{
    if (m_step == m_lastStep)
        accept();
    else
        QDialog::reject();
}
