// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QHash>
#include <QObject>

class DayNotes;
class Month;

/// The notes of a month that is shown.
class MonthNotes : public QObject {
    Q_OBJECT

public:
    explicit MonthNotes(DayNotes& notes);

    /// Takes the notes of a month. If they cannot be read, there are none.
    void read(const Month& month);
    /// The text of a day's note, empty if it has none.
    [[nodiscard]] QString of(QDate date) const { return m_texts.value(date); }

Q_SIGNALS:
    void changed();

private:
    void read();

    DayNotes& m_notes;
    QDate m_first;
    QDate m_last;
    QHash<QDate, QString> m_texts;
};
