// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DayDifference.h"

#include <QAbstractItemModel>

class DayAbsences;

/// The days that restoring a backup would change, by month. Months can be unchecked, and all at once in the first row
/// if there are several.
class RestoreModel : public QAbstractItemModel {
    Q_OBJECT

public:
    /// Of a day's row: the DayDifference, and what the day is now and in the backup, in words.
    static constexpr int differenceRole = Qt::UserRole;
    static constexpr int beforeRole = Qt::UserRole + 1;
    static constexpr int afterRole = Qt::UserRole + 2;

    /// The days are in order.
    RestoreModel(QList<DayDifference> days, const DayAbsences& absences, QObject* parent = nullptr);

    /// The words of all days, each once.
    [[nodiscard]] QStringList stateNames() const;

    /// The days of the checked months.
    [[nodiscard]] QList<DayDifference> checkedDays() const;
    [[nodiscard]] qsizetype checkedCount() const;

    [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex& child) const override;
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

Q_SIGNALS:
    void checkedChanged();

private:
    struct MonthRows {
        qsizetype firstDay;
        qsizetype dayCount;
        bool isChecked = true;
    };

    [[nodiscard]] bool isAllRow(const QModelIndex& index) const;
    [[nodiscard]] const MonthRows& monthAt(const QModelIndex& index) const;
    [[nodiscard]] QString before(const DayDifference& day) const;
    [[nodiscard]] QString after(const DayDifference& day) const;
    [[nodiscard]] QVariant monthData(const MonthRows& month, int role) const;
    [[nodiscard]] Qt::CheckState allChecked() const;

    QList<DayDifference> m_days;
    const DayAbsences& m_absences;
    QList<MonthRows> m_months;
    /// How many rows stand above the months.
    int m_allRows;
};
