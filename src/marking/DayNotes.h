// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QHash>
#include <QList>
#include <QObject>

#include <memory>

class DayNote;
class ModelContext;

/// The notes of days, one a day.
class DayNotes : public QObject {
    Q_OBJECT

public:
    explicit DayNotes(ModelContext& context)
        : m_context(context)
    {
    }

    /// The notes of the days from one date to another. Throws a StoreError if the store cannot be read.
    [[nodiscard]] QList<std::shared_ptr<DayNote>> between(QDate from, QDate to) const;
    /// The note of a day; an empty one that is not stored if there is none. Throws a StoreError if the store cannot be
    /// read.
    [[nodiscard]] std::shared_ptr<DayNote> noteOf(QDate date) const;

    /// Changes the text of a note. It is on disk when this returns; a failed save keeps it in memory for the next one.
    /// A note without text is removed.
    void write(const std::shared_ptr<DayNote>& note, const QString& text);
    /// Adds notes to days without one; the others keep theirs. They are saved with the next save of the context. Throws
    /// a StoreError, and changes nothing, if the store cannot be read.
    void add(const QHash<QDate, QString>& texts);

Q_SIGNALS:
    /// The note of a day has been written or removed. It is emitted in the next turn of the event loop, so that a note
    /// can be written while a window is being destroyed.
    void changed(QDate date);

private:
    void reportChange(QDate date);

    ModelContext& m_context;
};
