// SPDX-License-Identifier: GPL-3.0-or-later
#include "WelcomeView.h"

#include "AppSettings.h"
#include "Bar.h"
#include "Button.h"
#include "InOfficeCheck.h"
#include "Page.h"
#include "StepDots.h"
#include "ViewParts.h"
#include "WelcomeSteps.h"

#include <QGridLayout>
#include <QScreen>
#include <QStackedWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize firstSize(540, 720);

} // namespace

WelcomeView::WelcomeView(const ViewParts& parts, QWidget* parent)
    : QDialog(parent)
    , m_parts(parts)
    , m_steps(new QStackedWidget)
    , m_dots(new StepDots(stepCount))
    , m_skip(new Button(tr("Skip")))
    , m_back(new Button(tr("Back")))
    , m_next(new Button({}))
{
    setWindowTitle(tr("Welcome to Pellory"));
    setWindowModality(Qt::WindowModal);
    setAttribute(Qt::WA_DeleteOnClose);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(m_steps);
    column->addWidget(makeFooter());
    resize(firstSize.boundedTo(screen()->availableSize()));
    showStep(0);
}

QWidget* WelcomeView::makeFooter()
{
    m_skip->setObjectName("skip"_L1);
    m_back->setObjectName("back"_L1);
    m_next->setObjectName("next"_L1);
    m_next->setDefault(true);
    auto* onward = new QHBoxLayout;
    onward->addWidget(m_back);
    onward->addWidget(m_next);
    auto* footer = new Bar(Qt::TopEdge);
    auto* row = new QGridLayout(footer);
    row->setContentsMargins(24, 12, 24, 12);
    row->addWidget(m_skip, 0, 0, Qt::AlignLeft);
    row->addWidget(m_dots, 0, 1, Qt::AlignCenter);
    row->addLayout(onward, 0, 2, Qt::AlignRight);
    row->setColumnStretch(0, 1);
    row->setColumnStretch(2, 1);
    connect(m_skip, &QAbstractButton::clicked, this, [this] { showStep(stepCount - 1); });
    connect(m_back, &QAbstractButton::clicked, this, [this] { showStep(m_step - 1); });
    connect(m_next, &QAbstractButton::clicked, this, &WelcomeView::goOn);
    return footer;
}

void WelcomeView::showStep(int step)
{
    m_step = step;
    const bool isLast = step == stepCount - 1;
    QWidget*& page = m_built.at(static_cast<std::size_t>(step));
    // The summary is made anew: it says what is set now.
    if (isLast)
        delete std::exchange(page, nullptr);
    if (page == nullptr) {
        page = makeStep(step);
        m_steps->addWidget(page);
    }
    m_steps->setCurrentWidget(page);
    m_dots->setCurrent(step);
    m_back->setEnabled(step > 0);
    m_skip->setEnabled(!isLast);
    m_next->setText(isLast ? tr("Done") : tr("Next"));
    m_next->setFocus(Qt::OtherFocusReason);
}

QWidget* WelcomeView::makeStep(int step)
{
    using Maker = QWidget* (*)(const ViewParts&);
    static constexpr std::array<Maker, stepCount> makers{welcome::makeIntroduction, welcome::makeGoals,
                                                         welcome::makeGeneral, welcome::makeWiFi, welcome::makeSummary};
    return new Page(makers.at(static_cast<std::size_t>(step))(m_parts));
}

void WelcomeView::goOn()
{
    if (m_step < stepCount - 1)
        showStep(m_step + 1);
    else
        complete();
}

void WelcomeView::complete()
{
    m_parts.settings.firstTime = false;
    m_parts.check.checkNow(false);
    accept();
}
