// SPDX-License-Identifier: GPL-3.0-or-later
#include "ChangeText.h"

#include "DayMarker.h"

#include <QCoreApplication>
#include <QLocale>

namespace {

struct ChangeTexts {
    Q_DECLARE_TR_FUNCTIONS(ChangeText)
};

QString dayText(QDate date, QDate today)
{
    //: A short date, in the format of QLocale::toString(). Put words in single quotes: 'the' d.
    const QString format = date.year() == today.year() ? ChangeTexts::tr("ddd d MMMM")
                                                       //: The same for a day of another year.
                                                       : ChangeTexts::tr("ddd d MMMM yyyy");
    return QLocale().toString(date, format);
}

QString whatChanged(const ChangedDays& change, QDate today, const DayAbsences& absences)
{
    const QString state = absences.describe(change.state, change.absenceKind);
    const int count = static_cast<int>(change.dates.size());
    if (count == 1) {
        const QString day = dayText(change.dates.first(), today);
        return change.by == ChangedBy::Undo ? ChangeTexts::tr("%1 is %2 again", "day and state").arg(day, state)
                                            : ChangeTexts::tr("%1: %2", "day and state").arg(day, state);
    }
    // Only by hand are several days set to the same state.
    return change.by == ChangedBy::Hand ? ChangeTexts::tr("%n days: %1", "state", count).arg(state)
                                        : ChangeTexts::tr("%n days", nullptr, count);
}

} // namespace

QString changeText(const QList<ChangedDays>& changes, QDate today, const DayAbsences& absences)
{
    QStringList parts;
    for (const ChangedDays& change : changes)
        parts += whatChanged(change, today, absences);
    QString what = parts.join(QStringLiteral(", "));
    switch (changes.last().by) {
    case ChangedBy::Check:
        return ChangeTexts::tr("Marked automatically: %1").arg(what);
    case ChangedBy::Undo:
        return ChangeTexts::tr("Taken back: %1").arg(what);
    case ChangedBy::Redo:
        return ChangeTexts::tr("Set again: %1").arg(what);
    case ChangedBy::Restore:
        return ChangeTexts::tr("Restored: %1").arg(what);
    case ChangedBy::Pattern:
        return ChangeTexts::tr("Plan changed: %1").arg(what);
    case ChangedBy::Hand:
    case ChangedBy::Import:
        break;
    }
    return what;
}
