// SPDX-License-Identifier: GPL-3.0-or-later
#include "DayTexts.h"

#include "CountingRecords.h"
#include "DayAbsences.h"

#include <QLocale>

DayTexts::DayTexts(const CountingRecords& records)
    : m_records(&records)
    , m_counting(records.counting())
{
}

Day DayTexts::colored(Day day, QDate date) const
{
    if (m_counting.isUsed())
        day.isWorkday = m_counting.isWorkday(date);
    return day;
}

QString DayTexts::state(QDate date, DayState state) const
{
    return m_records != nullptr ? m_records->absences().describe(state, m_counting.absenceKind(date))
                                : description(state);
}

QString DayTexts::onHover(QDate date, DayState dayState) const
{
    QString known = state(date, dayState);
    const DayOff* dayOff = m_counting.dayOff(date);
    if (dayOff == nullptr)
        return known;
    const QString name = dayOff->name.isEmpty() ? tr("Day Off") : dayOff->name;
    return tr("%1 · %2", "state, and name of the day off").arg(known, name);
}

QString DayTexts::spoken(QDate date, DayState dayState) const
{
    //: A date as a screen reader says it, in the format of QLocale::toString(). Put words in single quotes: 'the' d.
    const QString written = QLocale().toString(date, tr("dddd d MMMM yyyy"));
    QString known = tr("%1, %2", "date and state").arg(written, state(date, dayState));
    const DayOff* dayOff = m_counting.dayOff(date);
    if (dayOff == nullptr)
        return known;
    const QString name = dayOff->name.isEmpty() ? tr("Day Off") : tr("Day Off: %1").arg(dayOff->name);
    return tr("%1, %2", "date and state").arg(known, name);
}
