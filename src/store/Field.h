// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Row.h"
#include "StoredValue.h"

#include <QProperty>

#include <functional>
#include <memory>

/// One field of a record: the column that holds it, and how it is read, written and followed.
template <class Record> struct Field {
    Column column;
    std::function<Value(const Record&)> read;
    /// Throws a StoreError when the field cannot hold the value.
    std::function<void(Record&, const Value&)> write;
    /// Empty for a field that never changes.
    std::function<QPropertyNotifier(Record&, const std::function<void()>& changed)> follow;
};

template <class Record, class T> [[nodiscard]] Field<Record> field(const char* column, QProperty<T> Record::*property)
{
    return {
        .column = {column, columnType<T>()},
        .read = [property](const Record& record) { return toStored((record.*property).value()); },
        .write = [property](Record& record, const Value& value) { record.*property = fromStored<T>(value); },
        .follow = [property](Record& record, const auto& changed) { return (record.*property).addNotifier(changed); }};
}

/// A field that never changes.
template <class Record, class T> [[nodiscard]] Field<Record> field(const char* column, T Record::*member)
{
    return {.column = {column, columnType<T>()},
            .read = [member](const Record& record) { return toStored(record.*member); },
            .write = [member](Record& record, const Value& value) { record.*member = fromStored<T>(value); },
            .follow = {}};
}

/// A field that never changes and is one of the numbers from 1 to `last`.
template <class Record, class Number>
[[nodiscard]] Field<Record> field(const char* column, Number Record::*member, Number last)
{
    return {.column = {column, ColumnType::Integer},
            .read = [member](const Record& record) { return toStored(static_cast<int>(record.*member)); },
            .write =
                [member, last](Record& record, const Value& value) {
                    record.*member = static_cast<Number>(numberUpTo(static_cast<int>(last), value));
                },
            .follow = {}};
}

/// All fields of one kind of record, in the order of the columns of its table.
template <class Record> struct RecordFields {
    std::string table;
    std::vector<Field<Record>> fields;

    [[nodiscard]] TableLayout layout() const
    {
        TableLayout layout{table, {}};
        for (const auto& field : fields)
            layout.columns.push_back(field.column);
        return layout;
    }

    [[nodiscard]] Row row(const Record& record) const
    {
        Row row;
        for (const auto& field : fields)
            row.push_back(field.read(record));
        return row;
    }

    /// Throws a StoreError when no record of this kind can hold the row.
    [[nodiscard]] std::shared_ptr<Record> record(const Row& row) const
    {
        auto record = std::make_shared<Record>();
        for (std::size_t i = 0; i < fields.size(); ++i)
            fields[i].write(*record, row.at(i));
        return record;
    }

    /// Calls `changed` after every change of a field, for as long as what it returns exists.
    [[nodiscard]] std::vector<QPropertyNotifier> follow(Record& record, const std::function<void()>& changed) const
    {
        std::vector<QPropertyNotifier> followers;
        for (const auto& field : fields) {
            if (field.follow)
                followers.push_back(field.follow(record, changed));
        }
        return followers;
    }
};
