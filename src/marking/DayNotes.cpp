// SPDX-License-Identifier: GPL-3.0-or-later
#include "DayNotes.h"

#include "DayNote.h"
#include "ModelContext.h"

QList<std::shared_ptr<DayNote>> DayNotes::between(QDate from, QDate to) const
{
    return m_context.fetchNotes(from, to);
}

std::shared_ptr<DayNote> DayNotes::noteOf(QDate date) const
{
    const auto found = between(date, date);
    return found.isEmpty() ? std::make_shared<DayNote>(date) : found.first();
}

void DayNotes::write(const std::shared_ptr<DayNote>& note, const QString& text)
{
    const QString kept = text.trimmed().isEmpty() ? QString() : text;
    if (note->text.value() == kept)
        return;
    note->text = kept;
    if (kept.isEmpty())
        m_context.remove(note);
    else
        m_context.insert(note);
    m_context.save();
    QMetaObject::invokeMethod(
        this, [this, date = note->date] { Q_EMIT changed(date); }, Qt::QueuedConnection);
}
