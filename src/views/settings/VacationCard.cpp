// SPDX-License-Identifier: GPL-3.0-or-later
#include "VacationCard.h"

#include "CountingRecords.h"
#include "Follow.h"
#include "Labels.h"
#include "Switch.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

VacationCard::VacationCard(CountingRecords& counting, QWidget* parent)
    : CountingCard(tr("Vacation"), {}, parent)
{
    const QString help =
        tr("A vacation day is then not a workday: it counts neither for you nor against you, and \"Vacation "
           "days count as in the office\" on the page General is off.");
    auto* toggle = new Switch(tr("Leave vacation days out of the workdays"));
    toggle->setObjectName("leaveOutVacation"_L1);
    toggle->setAccessibleDescription(help);
    column().addWidget(toggle);
    column().addWidget(labels::dim(help));
    addProblemLine();
    const auto show = [&counting, toggle] { toggle->setChecked(counting.leavesOutVacation()); };
    follow(counting.leavesOutVacation(), toggle, show);
    connect(toggle, &QAbstractButton::toggled, this, [this, &counting, show](bool on) {
        if (on == counting.leavesOutVacation())
            return;
        report(counting.setLeavesOutVacation(on));
        show();
    });
}
