// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Day.h"
#include "DayChange.h"
#include "Row.h"
#include "Weekdays.h"

#include <QStringList>
#include <QUuid>

/// The stored form of a field of each type. Booleans are 0 and 1, dates are numbers like 20261122, 0 for none,
/// days of the week are bits, lists are JSON.
[[nodiscard]] Value toStored(bool flag);
[[nodiscard]] Value toStored(int number);
[[nodiscard]] Value toStored(qint64 number);
[[nodiscard]] Value toStored(const QString& text);
[[nodiscard]] Value toStored(const QUuid& id);
[[nodiscard]] Value toStored(const QStringList& strings);
[[nodiscard]] Value toStored(const QList<Day>& grid);
[[nodiscard]] Value toStored(QDate date);
[[nodiscard]] Value toStored(const std::optional<QDate>& date);
[[nodiscard]] Value toStored(Weekdays weekdays);
[[nodiscard]] Value toStored(DayState state);
[[nodiscard]] Value toStored(ChangedBy who);

/// The reverse. Throws a StoreError when a field of this type cannot hold the value.
template <class T> [[nodiscard]] T fromStored(const Value& value);
template <> bool fromStored<bool>(const Value& value);
template <> int fromStored<int>(const Value& value);
template <> qint64 fromStored<qint64>(const Value& value);
template <> QString fromStored<QString>(const Value& value);
template <> QUuid fromStored<QUuid>(const Value& value);
template <> QStringList fromStored<QStringList>(const Value& value);
template <> QList<Day> fromStored<QList<Day>>(const Value& value);
template <> QDate fromStored<QDate>(const Value& value);
template <> std::optional<QDate> fromStored<std::optional<QDate>>(const Value& value);
template <> Weekdays fromStored<Weekdays>(const Value& value);
template <> DayState fromStored<DayState>(const Value& value);
template <> ChangedBy fromStored<ChangedBy>(const Value& value);

/// A number from 1 to `last`. Throws a StoreError for any other.
[[nodiscard]] int numberUpTo(int last, const Value& value);

template <class T> [[nodiscard]] ColumnType columnType()
{
    return std::holds_alternative<std::string>(toStored(T())) ? ColumnType::Text : ColumnType::Integer;
}
