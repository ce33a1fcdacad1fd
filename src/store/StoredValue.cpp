// SPDX-License-Identifier: GPL-3.0-or-later
#include "StoredValue.h"

#include "JsonLists.h"
#include "Month.h"
#include "StoreError.h"

#include <limits>

Value toStored(bool flag)
{
    return std::int64_t{flag};
}

Value toStored(int number)
{
    return std::int64_t{number};
}

Value toStored(qint64 number)
{
    return std::int64_t{number};
}

Value toStored(const QString& text)
{
    return text.toStdString();
}

Value toStored(const QUuid& id)
{
    return toStored(id.toString(QUuid::WithoutBraces));
}

Value toStored(const QStringList& strings)
{
    return encodedStrings(strings);
}

Value toStored(const QList<Day>& grid)
{
    return encodedDays(grid);
}

Value toStored(QDate date)
{
    return toStored((date.year() * 100 + date.month()) * 100 + date.day());
}

Value toStored(const std::optional<QDate>& date)
{
    return date ? toStored(*date) : toStored(0);
}

Value toStored(Weekdays weekdays)
{
    return toStored(weekdays.bits());
}

Value toStored(DayState state)
{
    return std::string(rawValue(state).data());
}

Value toStored(ChangedBy who)
{
    return toStored(static_cast<int>(who));
}

template <> bool fromStored<bool>(const Value& value)
{
    return std::get<std::int64_t>(value) != 0;
}

template <> int fromStored<int>(const Value& value)
{
    const auto number = std::get<std::int64_t>(value);
    if (number < std::numeric_limits<int>::min() || number > std::numeric_limits<int>::max())
        throw StoreError(StoreError::tr("a number is out of range"));
    return static_cast<int>(number);
}

template <> qint64 fromStored<qint64>(const Value& value)
{
    return std::get<std::int64_t>(value);
}

template <> QString fromStored<QString>(const Value& value)
{
    return QString::fromStdString(std::get<std::string>(value));
}

template <> QUuid fromStored<QUuid>(const Value& value)
{
    return QUuid(fromStored<QString>(value));
}

template <> QStringList fromStored<QStringList>(const Value& value)
{
    return decodedStrings(std::get<std::string>(value));
}

template <> QList<Day> fromStored<QList<Day>>(const Value& value)
{
    QList<Day> grid = decodedDays(std::get<std::string>(value));
    if (grid.size() != Month::cellCount)
        throw StoreError(StoreError::tr("it has %1 cells instead of %2").arg(grid.size()).arg(Month::cellCount));
    return grid;
}

template <> QDate fromStored<QDate>(const Value& value)
{
    const int number = fromStored<int>(value);
    const QDate date(number / 10000, number / 100 % 100, number % 100);
    if (!date.isValid())
        throw StoreError(StoreError::tr("%1 is not a date").arg(number));
    return date;
}

template <> std::optional<QDate> fromStored<std::optional<QDate>>(const Value& value)
{
    return fromStored<int>(value) == 0 ? std::nullopt : std::optional(fromStored<QDate>(value));
}

template <> Weekdays fromStored<Weekdays>(const Value& value)
{
    return Weekdays(fromStored<int>(value));
}

template <> DayState fromStored<DayState>(const Value& value)
{
    const QString raw = fromStored<QString>(value);
    if (const auto state = dayStateFromRawValue(raw))
        return *state;
    throw StoreError(StoreError::tr("\"%1\" is not a state").arg(raw));
}

template <> ChangedBy fromStored<ChangedBy>(const Value& value)
{
    return static_cast<ChangedBy>(numberUpTo(static_cast<int>(ChangedBy::Import), value));
}

int numberUpTo(int last, const Value& value)
{
    const int number = fromStored<int>(value);
    if (number < 1 || number > last)
        throw StoreError(StoreError::tr("a number is out of range"));
    return number;
}
