// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "WorkTime.h"

#include <QAbstractItemModel>

/// A day off as a list shows it.
struct ListedDayOff {
    DayOff day;
    /// Stands at the end of the row, such as where the day off comes from.
    QString note = {};
    /// Whether the row is dimmed, because it changes nothing.
    bool isDim = false;
    bool isChecked = false;
    /// Whether checking it adds nothing, because it is one of the days off already.
    bool isPresent = false;

    bool operator==(const ListedDayOff&) const = default;
};

/// Days off by year.
class DaysOffModel : public QAbstractItemModel {
    Q_OBJECT

public:
    /// In a list without checkboxes the days can be selected.
    explicit DaysOffModel(bool hasCheckboxes, QObject* parent = nullptr);

    /// Of each date there is at most one day.
    void setDays(QList<ListedDayOff> days);
    /// In the order of their dates.
    [[nodiscard]] const QList<ListedDayOff>& days() const { return m_days; }
    /// Null for the row of a year.
    [[nodiscard]] const ListedDayOff* dayAt(const QModelIndex& index) const;
    /// The row of the first day on this date or later, else of the last day.
    [[nodiscard]] QModelIndex indexNear(QDate date) const;
    /// The year of a row that is one.
    [[nodiscard]] int yearAt(const QModelIndex& index) const;

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
    struct YearRows {
        qsizetype firstDay;
        qsizetype dayCount;
    };

    [[nodiscard]] QVariant yearData(const YearRows& year, int role) const;
    [[nodiscard]] qsizetype checkedCount(const YearRows& year) const;
    [[nodiscard]] Qt::CheckState checkedOf(const YearRows& year) const;

    bool m_hasCheckboxes;
    QList<ListedDayOff> m_days;
    QList<YearRows> m_years;
};
