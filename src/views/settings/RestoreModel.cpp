// SPDX-License-Identifier: GPL-3.0-or-later
#include "RestoreModel.h"

#include "BackupTexts.h"
#include "CheckedText.h"

#include <QLocale>

#include <algorithm>

namespace {

// The internal number of the rows that are in none; of a day it is the row of its month.
constexpr quintptr topLevel = ~quintptr(0);

bool isSameMonth(QDate a, QDate b)
{
    return a.year() == b.year() && a.month() == b.month();
}

} // namespace

RestoreModel::RestoreModel(const QList<DayDifference>& days, const QList<DayDifference>& conflicts, Describe describe,
                           QObject* parent)
    : QAbstractItemModel(parent)
    , m_describe(std::move(describe))
{
    addMonths(days, false);
    addMonths(conflicts, true);
    m_allRows = m_months.size() > 1 ? 1 : 0;
}

void RestoreModel::addMonths(const QList<DayDifference>& days, bool isConflict)
{
    const auto first = m_days.size();
    m_days += days;
    for (auto i = first; i < m_days.size(); ++i) {
        if (i == first || !isSameMonth(m_days.at(i - 1).date, m_days.at(i).date))
            m_months.append({i, 0, isConflict, !isConflict});
        ++m_months.last().dayCount;
    }
}

QStringList RestoreModel::stateNames() const
{
    QStringList names;
    for (const DayDifference& day : m_days)
        names << before(day) << after(day);
    names.removeDuplicates();
    return names;
}

QString RestoreModel::before(const DayDifference& day) const
{
    return m_describe(day.before, day.absenceBefore);
}

QString RestoreModel::after(const DayDifference& day) const
{
    return m_describe(day.after, day.absenceAfter);
}

QList<DayDifference> RestoreModel::checkedDays() const
{
    QList<DayDifference> days;
    for (const MonthRows& month : m_months) {
        if (month.isChecked)
            days += m_days.mid(month.firstDay, month.dayCount);
    }
    return days;
}

qsizetype RestoreModel::checkedCount() const
{
    qsizetype count = 0;
    for (const MonthRows& month : m_months)
        count += month.isChecked ? month.dayCount : 0;
    return count;
}

bool RestoreModel::isAllRow(const QModelIndex& index) const
{
    return index.internalId() == topLevel && index.row() < m_allRows;
}

const RestoreModel::MonthRows& RestoreModel::monthAt(const QModelIndex& index) const
{
    return m_months.at(index.row() - m_allRows);
}

QModelIndex RestoreModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column, parent.isValid() ? static_cast<quintptr>(parent.row()) : topLevel);
}

QModelIndex RestoreModel::parent(const QModelIndex& child) const
{
    const quintptr month = child.internalId();
    return month == topLevel ? QModelIndex() : createIndex(static_cast<int>(month), 0, topLevel);
}

int RestoreModel::rowCount(const QModelIndex& parent) const
{
    if (!parent.isValid())
        return m_allRows + static_cast<int>(m_months.size());
    const bool isMonth = parent.internalId() == topLevel && !isAllRow(parent);
    return isMonth ? static_cast<int>(monthAt(parent).dayCount) : 0;
}

int RestoreModel::columnCount(const QModelIndex& /*parent*/) const
{
    return 1;
}

QVariant RestoreModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    if (role == Qt::AccessibleTextRole && index.internalId() == topLevel)
        return checkedText(data(index, Qt::DisplayRole).toString(),
                           data(index, Qt::CheckStateRole).value<Qt::CheckState>());
    if (isAllRow(index))
        return role == Qt::DisplayRole      ? QVariant(tr("All Months"))
               : role == Qt::CheckStateRole ? QVariant(allChecked())
                                            : QVariant();
    if (index.internalId() == topLevel)
        return monthData(monthAt(index), role);
    const DayDifference& day = m_days.at(monthAt(index.parent()).firstDay + index.row());
    if (role == differenceRole)
        return QVariant::fromValue(day);
    if (role == beforeRole || role == afterRole)
        return role == beforeRole ? before(day) : after(day);
    if (role != Qt::DisplayRole)
        return {};
    //: A short date, in the format of QLocale::toString(). Put words in single quotes: 'the' d.
    return tr("%1: %2 → %3", "date, state now, state in the backup")
        .arg(QLocale().toString(day.date, tr("ddd d MMMM")), before(day), after(day));
}

QVariant RestoreModel::monthData(const MonthRows& month, int role) const
{
    if (role == Qt::CheckStateRole)
        return month.isChecked ? Qt::Checked : Qt::Unchecked;
    if (role != Qt::DisplayRole)
        return {};
    const QDate date = m_days.at(month.firstDay).date;
    const QString name = tr("%1 %2", "month, year").arg(QLocale().standaloneMonthName(date.month())).arg(date.year());
    const QString count = backup_texts::days(month.dayCount);
    return month.isConflict ? tr("%1: %2 marked otherwise here", "month, number of days").arg(name, count)
                            : tr("%1: %2", "month, number of days").arg(name, count);
}

bool RestoreModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::CheckStateRole || index.internalId() != topLevel)
        return false;
    const bool isChecked = value.toInt() == Qt::Checked;
    if (isAllRow(index)) {
        for (MonthRows& month : m_months)
            month.isChecked = isChecked;
    } else {
        m_months[index.row() - m_allRows].isChecked = isChecked;
    }
    // The row of all months and those of the months depend on each other.
    Q_EMIT dataChanged(this->index(0, 0), this->index(rowCount() - 1, 0), {Qt::CheckStateRole});
    Q_EMIT checkedChanged();
    return true;
}

Qt::ItemFlags RestoreModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return {};
    const Qt::ItemFlags shown = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    return index.internalId() == topLevel ? shown | Qt::ItemIsUserCheckable : shown | Qt::ItemNeverHasChildren;
}

Qt::CheckState RestoreModel::allChecked() const
{
    const auto count = std::ranges::count_if(m_months, &MonthRows::isChecked);
    return count == 0 ? Qt::Unchecked : count == m_months.size() ? Qt::Checked : Qt::PartiallyChecked;
}
