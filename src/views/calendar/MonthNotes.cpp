// SPDX-License-Identifier: GPL-3.0-or-later
#include "MonthNotes.h"

#include "DayNote.h"
#include "DayNotes.h"
#include "Month.h"
#include "StoreError.h"

#include <QLoggingCategory>

namespace {

Q_LOGGING_CATEGORY(logNotes, "pellory.calendar", QtInfoMsg)

} // namespace

MonthNotes::MonthNotes(DayNotes& notes)
    : m_notes(notes)
{
    connect(&notes, &DayNotes::changed, this, [this](QDate date) {
        if (date < m_first || date > m_last)
            return;
        read();
        Q_EMIT changed();
    });
}

void MonthNotes::read(const Month& month)
{
    m_first = month.dateOf(1);
    m_last = month.dateOf(month.daysInMonth);
    read();
}

void MonthNotes::read()
{
    m_texts.clear();
    try {
        for (const auto& note : m_notes.between(m_first, m_last))
            m_texts.insert(note->date, note->text);
    } catch (const StoreError& error) {
        qCWarning(logNotes, "The notes of a month cannot be read: %s", error.what());
    }
}
