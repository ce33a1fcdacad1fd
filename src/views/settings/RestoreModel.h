// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DayDifference.h"

#include <QAbstractItemModel>

#include <functional>

/// The days that a restored backup or an imported list would change, by month. Months can be unchecked, and all at once
/// in the first row if there are several.
class RestoreModel : public QAbstractItemModel {
    Q_OBJECT

public:
    /// A state and the kind of an absence in words.
    using Describe = std::function<QString(DayState state, int absenceKind)>;

    /// Of a day's row: the DayDifference, and what the day is now and is to be, in words.
    static constexpr int differenceRole = Qt::UserRole;
    static constexpr int beforeRole = Qt::UserRole + 1;
    static constexpr int afterRole = Qt::UserRole + 2;

    /// The days are in order. After them, `conflicts` have months of their own, which are unchecked.
    RestoreModel(const QList<DayDifference>& days, const QList<DayDifference>& conflicts, Describe describe,
                 QObject* parent = nullptr);

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
        bool isConflict;
        bool isChecked;
    };

    void addMonths(const QList<DayDifference>& days, bool isConflict);

    [[nodiscard]] bool isAllRow(const QModelIndex& index) const;
    [[nodiscard]] const MonthRows& monthAt(const QModelIndex& index) const;
    [[nodiscard]] QString before(const DayDifference& day) const;
    [[nodiscard]] QString after(const DayDifference& day) const;
    [[nodiscard]] QVariant monthData(const MonthRows& month, int role) const;
    [[nodiscard]] Qt::CheckState allChecked() const;

    QList<DayDifference> m_days;
    Describe m_describe;
    QList<MonthRows> m_months;
    /// How many rows stand above the months.
    int m_allRows;
};
