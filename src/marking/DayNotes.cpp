// SPDX-License-Identifier: GPL-3.0-or-later
#include "DayNotes.h"

#include "DayNote.h"
#include "ModelContext.h"

#include <QSet>

#include <algorithm>

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
    reportChange(note->date);
}

void DayNotes::add(const QHash<QDate, QString>& texts)
{
    if (texts.isEmpty())
        return;
    const auto [first, last] = std::ranges::minmax(texts.keys());
    QSet<QDate> present;
    for (const auto& note : between(first, last))
        present.insert(note->date);
    for (auto text = texts.begin(); text != texts.end(); ++text) {
        if (present.contains(text.key()) || text.value().trimmed().isEmpty())
            continue;
        const auto note = std::make_shared<DayNote>(text.key());
        note->text = text.value();
        m_context.insert(note);
        reportChange(text.key());
    }
}

void DayNotes::reportChange(QDate date)
{
    QMetaObject::invokeMethod(
        this, [=, this] { Q_EMIT changed(date); }, Qt::QueuedConnection);
}
