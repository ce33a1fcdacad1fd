// SPDX-License-Identifier: GPL-3.0-or-later
#include "Row.h"

#include "StoreError.h"

#include <SQLiteCpp/Column.h>
#include <SQLiteCpp/Statement.h>

// One function out of a library that would be loaded at every start.
#define XXH_INLINE_ALL
#include <xxhash.h>

namespace {

constexpr int firstField = 1; // the key stands before it

std::string columnNames(const TableLayout& layout, const char* suffix)
{
    std::string names;
    for (const Column& column : layout.columns)
        names += std::string(column.name) + suffix;
    return names;
}

void append(std::string& bytes, char type, const char* data, std::uint64_t size)
{
    bytes += type;
    bytes.append(reinterpret_cast<const char*>(&size), sizeof size);
    bytes.append(data, size);
}

Value readField(const SQLite::Column& field, ColumnType type)
{
    if (type == ColumnType::Integer && field.isInteger())
        return field.getInt64();
    if (type == ColumnType::Text && field.isText())
        return field.getString();
    throw StoreError(
        StoreError::tr("the field \"%1\" holds a value of the wrong type").arg(QLatin1StringView(field.getName())));
}

} // namespace

std::string TableLayout::createSql() const
{
    std::string sql = std::string("CREATE TABLE ") + name + " (pk INTEGER PRIMARY KEY, ";
    for (const Column& column : columns)
        sql += std::string(column.name) + (column.type == ColumnType::Text ? " TEXT" : " INTEGER") + " NOT NULL, ";
    return sql + "checksum INTEGER NOT NULL) STRICT";
}

std::string TableLayout::selectSql() const
{
    return "SELECT pk, " + columnNames(*this, ", ") + "checksum FROM " + name;
}

std::string TableLayout::insertSql() const
{
    std::string places;
    for (std::size_t i = 0; i < columns.size(); ++i)
        places += "?, ";
    return std::string("INSERT INTO ") + name + " (" + columnNames(*this, ", ") + "checksum) VALUES (" + places + "?)";
}

std::string TableLayout::updateSql() const
{
    return std::string("UPDATE ") + name + " SET " + columnNames(*this, " = ?, ") + "checksum = ? WHERE pk = ?";
}

std::int64_t checksum(const Row& row)
{
    std::string bytes;
    for (const Value& value : row) {
        if (const auto* number = std::get_if<std::int64_t>(&value))
            append(bytes, 'i', reinterpret_cast<const char*>(number), sizeof *number);
        else
            append(bytes, 't', std::get<std::string>(value).data(), std::get<std::string>(value).size());
    }
    return static_cast<std::int64_t>(XXH3_64bits(bytes.data(), bytes.size()));
}

Row readRow(SQLite::Statement& statement, const TableLayout& layout)
{
    Row row;
    row.reserve(layout.columns.size());
    int index = firstField;
    for (const Column& column : layout.columns)
        row.push_back(readField(statement.getColumn(index++), column.type));
    if (statement.getColumn(index).getInt64() != checksum(row))
        throw StoreError(StoreError::tr("its checksum differs"));
    return row;
}

void bindRow(SQLite::Statement& statement, const Row& row)
{
    int place = 1;
    for (const Value& value : row)
        std::visit([&](const auto& field) { statement.bind(place++, field); }, value);
    statement.bind(place, checksum(row));
}
