// SPDX-License-Identifier: GPL-3.0-or-later
#include "DayOffField.h"

#include "CountingRecords.h"

namespace {

constexpr int longestDayOffName = 100;

} // namespace

DayOffField::DayOffField(CountingRecords& counting, QDate date, QWidget* parent)
    : TextField(tr("Name of the Day Off"), parent)
    , m_counting(counting)
    , m_date(date)
{
    setMaxLength(longestDayOffName);
    setText(counting.counting().value().dayOff(date)->name);
    setCursorPosition(0);
    connect(this, &QLineEdit::editingFinished, this, &DayOffField::save);
}

void DayOffField::hideEvent(QHideEvent* event)
{
    save();
    TextField::hideEvent(event);
}

void DayOffField::save()
{
    const Counting counting = m_counting.counting();
    const DayOff* before = counting.dayOff(m_date);
    const QString name = text().simplified();
    if (before == nullptr || before->name == name || !isModified())
        return;
    DayOff named = *before;
    named.name = name;
    m_counting.addDaysOff({named});
}
