// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QProperty>
#include <QString>

/// What a person wrote about a day.
class DayNote {
public:
    explicit DayNote(QDate day)
        : date(day)
    {
    }
    /// An empty record, for the store to fill.
    DayNote() = default;

    QDate date;
    QProperty<QString> text;
};
