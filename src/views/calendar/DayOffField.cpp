// SPDX-License-Identifier: GPL-3.0-or-later
#include "DayOffField.h"

#include "CountingRecords.h"

#include <chrono>

using namespace std::chrono_literals;

namespace {

constexpr int longestDayOffName = 100;
constexpr auto namingPause = 500ms;

} // namespace

DayOffField::DayOffField(CountingRecords& counting, QDate date, QWidget* parent)
    : TextField(tr("Name of the Day Off"), parent)
    , m_counting(counting)
    , m_date(date)
{
    setMaxLength(longestDayOffName);
    setText(counting.counting().value().dayOff(date)->name);
    setCursorPosition(0);
    // Not in the destructor, because calendars that follow the name may be half destroyed by then.
    m_pause.setSingleShot(true);
    m_pause.setInterval(namingPause);
    connect(this, &QLineEdit::textEdited, &m_pause, qOverload<>(&QTimer::start));
    connect(&m_pause, &QTimer::timeout, this, &DayOffField::save);
    connect(this, &QLineEdit::editingFinished, this, &DayOffField::save);
}

void DayOffField::hideEvent(QHideEvent* event)
{
    save();
    TextField::hideEvent(event);
}

void DayOffField::save()
{
    m_pause.stop();
    const Counting counting = m_counting.counting();
    const DayOff* before = counting.dayOff(m_date);
    const QString name = text().simplified();
    if (before == nullptr || before->name == name || !isModified())
        return;
    DayOff named = *before;
    named.name = name;
    m_counting.addDaysOff({named});
}
