// SPDX-License-Identifier: GPL-3.0-or-later
#include "DayHistory.h"

#include <QDateTime>
#include <QLocale>

using namespace Qt::StringLiterals;

QList<PastState> DayHistory::states(const QList<DayChange>& changes)
{
    QList<DayChange> steps;
    for (const DayChange& change : changes) {
        if (!steps.isEmpty() && steps.last().group == change.group) {
            steps.last().before = change.before;
            steps.last().absenceBefore = change.absenceBefore;
        } else {
            steps.append(change);
        }
    }
    steps.removeIf(
        [](const DayChange& step) { return step.before == step.after && step.absenceBefore == step.absenceAfter; });
    QList<PastState> states;
    for (const DayChange& step : steps)
        states.append({step.after, step.absenceAfter, step});
    if (!steps.isEmpty())
        states.append({steps.last().before, steps.last().absenceBefore, {}});
    return states;
}

QString DayHistory::describe(const PastState& state, QDate today)
{
    if (!state.setBy)
        return tr("Before the first recorded change");
    const DayChange& change = *state.setBy;
    const QDateTime time = QDateTime::fromMSecsSinceEpoch(change.time);
    QStringList parts{who(change.by)};
    if (time.date() != change.date) {
        //: A date in the format of QLocale::toString(). Put words in single quotes: 'the' d.
        const QString format = time.date().year() == today.year() ? tr("d MMMM") : tr("d MMMM yyyy");
        parts += QLocale().toString(time.date(), format);
    }
    parts += QLocale().toString(time.time(), QLocale::ShortFormat);
    if (!change.network.isEmpty())
        parts += change.network;
    return parts.join(", "_L1);
}

QString DayHistory::who(ChangedBy by)
{
    switch (by) {
    case ChangedBy::Hand:
        return tr("By hand");
    case ChangedBy::Check:
        return tr("Automatically");
    case ChangedBy::Undo:
        return tr("Undone");
    case ChangedBy::Redo:
        return tr("Redone");
    case ChangedBy::Restore:
        return tr("Restored from a backup");
    case ChangedBy::Pattern:
        return tr("By a plan");
    case ChangedBy::Import:
        return tr("Imported");
    }
    Q_UNREACHABLE();
}
