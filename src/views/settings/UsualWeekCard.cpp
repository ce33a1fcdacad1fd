// SPDX-License-Identifier: GPL-3.0-or-later
#include "UsualWeekCard.h"

#include "CountingRecords.h"
#include "Labels.h"
#include "Switch.h"
#include "WeekdayButtons.h"

#include <QEvent>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

UsualWeekCard::UsualWeekCard(CountingRecords& counting, QWidget* parent)
    : CountingCard(
          tr("Usual Week"),
          tr("\"Plan Usual Week\" in the menu of the main window plans these days of the month or quarter that "
             "it shows: from today on, workdays that are not marked yet."),
          parent)
    , m_counting(counting)
    , m_weekdays(new WeekdayButtons)
    , m_plansNewMonths(new Switch(tr("Plan new months like this")))
{
    const QString help = tr("A month is planned once, when it is shown or checked for the first time. Months that were "
                            "there before are left as they are.");
    m_weekdays->setObjectName("usualWeekdays"_L1);
    m_plansNewMonths->setObjectName("plansNewMonths"_L1);
    m_plansNewMonths->setAccessibleDescription(help);
    auto* question = labels::text(tr("I usually come on"));
    m_weekdays->setAccessibleName(question->text());
    column().addWidget(question);
    column().addWidget(m_weekdays);
    column().addWidget(m_plansNewMonths);
    column().addWidget(labels::dim(help));
    addProblemLine();
    showWeek();
    connect(&counting, &CountingRecords::changed, this, &UsualWeekCard::showWeek);
    connect(m_weekdays, &WeekdayButtons::chosen, this, &UsualWeekCard::set);
    connect(m_plansNewMonths, &QAbstractButton::toggled, this, &UsualWeekCard::set);
}

void UsualWeekCard::takeFocus()
{
    m_weekdays->findChild<QAbstractButton*>()->setFocus(Qt::TabFocusReason);
    m_awaitsFocus = !isActiveWindow();
}

bool UsualWeekCard::event(QEvent* event)
{
    // By itself the window would pass on the focus for another reason, which shows no ring.
    if (event->type() == QEvent::WindowActivate && m_awaitsFocus)
        takeFocus();
    return CountingCard::event(event);
}

void UsualWeekCard::showWeek()
{
    const UsualWeek week = m_counting.usualWeek();
    m_weekdays->setWeekdays(week.weekdays);
    const QSignalBlocker blocker(m_plansNewMonths);
    m_plansNewMonths->setChecked(week.plansNewMonths);
    m_plansNewMonths->setEnabled(!week.weekdays.isEmpty());
}

void UsualWeekCard::set()
{
    report(m_counting.setUsualWeek({m_weekdays->weekdays(), m_plansNewMonths->isChecked()}));
    showWeek(); // as it is stored
}
