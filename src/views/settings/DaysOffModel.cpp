// SPDX-License-Identifier: GPL-3.0-or-later
#include "DaysOffModel.h"

#include "CheckedText.h"
#include "CountingTexts.h"

#include <QLocale>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// The internal number of the rows of years; of a day it is the row of its year.
constexpr quintptr yearLevel = ~quintptr(0);

QDate dateOf(const ListedDayOff& listed)
{
    return listed.day.date;
}

} // namespace

DaysOffModel::DaysOffModel(bool hasCheckboxes, QObject* parent)
    : QAbstractItemModel(parent)
    , m_hasCheckboxes(hasCheckboxes)
{
}

void DaysOffModel::setDays(QList<ListedDayOff> days)
{
    std::ranges::stable_sort(days, {}, dateOf);
    beginResetModel();
    m_days = std::move(days);
    m_years.clear();
    for (qsizetype i = 0; i < m_days.size(); ++i) {
        if (i == 0 || dateOf(m_days.at(i - 1)).year() != dateOf(m_days.at(i)).year())
            m_years.append({i, 0});
        ++m_years.last().dayCount;
    }
    endResetModel();
}

const ListedDayOff* DaysOffModel::dayAt(const QModelIndex& index) const
{
    if (!index.isValid() || index.internalId() == yearLevel)
        return nullptr;
    return &m_days.at(m_years.at(static_cast<qsizetype>(index.internalId())).firstDay + index.row());
}

QModelIndex DaysOffModel::indexNear(QDate date) const
{
    if (m_days.isEmpty())
        return {};
    const auto found = std::ranges::lower_bound(m_days, date, {}, dateOf);
    const qsizetype place = qMin(found - m_days.begin(), m_days.size() - 1);
    const auto year =
        std::ranges::find_if(m_years, [place](const YearRows& rows) { return place < rows.firstDay + rows.dayCount; });
    return createIndex(static_cast<int>(place - year->firstDay), 0, static_cast<quintptr>(year - m_years.begin()));
}

int DaysOffModel::yearAt(const QModelIndex& index) const
{
    return dateOf(m_days.at(m_years.at(index.row()).firstDay)).year();
}

QModelIndex DaysOffModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column, parent.isValid() ? static_cast<quintptr>(parent.row()) : yearLevel);
}

QModelIndex DaysOffModel::parent(const QModelIndex& child) const
{
    const quintptr year = child.internalId();
    return year == yearLevel ? QModelIndex() : createIndex(static_cast<int>(year), 0, yearLevel);
}

int DaysOffModel::rowCount(const QModelIndex& parent) const
{
    if (!parent.isValid())
        return static_cast<int>(m_years.size());
    return parent.internalId() == yearLevel ? static_cast<int>(m_years.at(parent.row()).dayCount) : 0;
}

int DaysOffModel::columnCount(const QModelIndex& /*parent*/) const
{
    return 1;
}

QVariant DaysOffModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const ListedDayOff* listed = dayAt(index);
    if (listed == nullptr)
        return yearData(m_years.at(index.row()), role);
    if (role == Qt::CheckStateRole && m_hasCheckboxes)
        return listed->isChecked ? Qt::Checked : Qt::Unchecked;
    if (role != Qt::DisplayRole && role != Qt::AccessibleTextRole)
        return {};
    const QString date = role == Qt::DisplayRole ? counting_texts::dayAndMonth(dateOf(*listed))
                                                 : QLocale().toString(dateOf(*listed), QLocale::LongFormat);
    QStringList texts{date, listed->day.name, listed->note};
    texts.removeAll(QString());
    const QString text = texts.join(", "_L1);
    return role == Qt::AccessibleTextRole && m_hasCheckboxes
               ? checkedText(text, listed->isChecked ? Qt::Checked : Qt::Unchecked)
               : text;
}

QVariant DaysOffModel::yearData(const YearRows& year, int role) const
{
    if (role == Qt::CheckStateRole && m_hasCheckboxes)
        return checkedOf(year);
    if (role != Qt::DisplayRole && role != Qt::AccessibleTextRole)
        return {};
    const QString text = tr("%1: %2", "year, number of days off")
                             .arg(QString::number(dateOf(m_days.at(year.firstDay)).year()),
                                  counting_texts::daysOff(m_hasCheckboxes ? checkedCount(year) : year.dayCount));
    return role == Qt::AccessibleTextRole && m_hasCheckboxes ? checkedText(text, checkedOf(year)) : text;
}

qsizetype DaysOffModel::checkedCount(const YearRows& year) const
{
    const auto first = m_days.begin() + year.firstDay;
    return std::count_if(first, first + year.dayCount, std::mem_fn(&ListedDayOff::isChecked));
}

Qt::CheckState DaysOffModel::checkedOf(const YearRows& year) const
{
    const qsizetype count = checkedCount(year);
    return count == 0 ? Qt::Unchecked : count == year.dayCount ? Qt::Checked : Qt::PartiallyChecked;
}

bool DaysOffModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::CheckStateRole || !m_hasCheckboxes || !index.isValid())
        return false;
    const bool isYear = index.internalId() == yearLevel;
    const YearRows& year = m_years.at(isYear ? index.row() : index.parent().row());
    const qsizetype first = isYear ? year.firstDay : year.firstDay + index.row();
    const qsizetype end = isYear ? first + year.dayCount : first + 1;
    for (qsizetype i = first; i < end; ++i)
        m_days[i].isChecked = value.toInt() == Qt::Checked;
    // The row of the year depends on those of its days, and the other way round.
    const QModelIndex yearRow = isYear ? index : index.parent();
    Q_EMIT dataChanged(yearRow, yearRow, {Qt::CheckStateRole, Qt::DisplayRole, Qt::AccessibleTextRole});
    Q_EMIT dataChanged(this->index(0, 0, yearRow), this->index(rowCount(yearRow) - 1, 0, yearRow),
                       {Qt::CheckStateRole});
    Q_EMIT checkedChanged();
    return true;
}

Qt::ItemFlags DaysOffModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return {};
    const bool isYear = index.internalId() == yearLevel;
    Qt::ItemFlags flags = Qt::ItemIsEnabled;
    flags.setFlag(Qt::ItemIsUserCheckable, m_hasCheckboxes);
    flags.setFlag(Qt::ItemIsSelectable, m_hasCheckboxes || !isYear);
    flags.setFlag(Qt::ItemNeverHasChildren, !isYear);
    return flags;
}
