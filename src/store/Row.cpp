// SPDX-License-Identifier: GPL-3.0-or-later
#include "Row.h"

#include "StoreError.h"

#include <SQLiteCpp/Column.h>
#include <SQLiteCpp/Statement.h>

// From the header alone: one function is not worth loading a library at every start.
#define XXH_INLINE_ALL
#include <xxhash.h>

namespace {

constexpr int firstField = 1; // column 0 is the key

std::string columnNames(const TableLayout& layout, const char* suffix)
{
    std::string names;
    for (const Column& column : layout.columns)
        names += column.name + suffix;
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

// Each constraint is checked for each row when a store is opened. A large table does without, since its checksums show
// the same when a row is read.
std::string TableLayout::createSql() const
{
    const std::string constraint = isLarge ? "" : " NOT NULL";
    std::string sql = "CREATE TABLE " + name + " (pk INTEGER PRIMARY KEY, ";
    for (const Column& column : columns)
        sql += column.name + (column.type == ColumnType::Text ? " TEXT" : " INTEGER") + constraint + ", ";
    return sql + "checksum INTEGER" + constraint + (isLarge ? ")" : ") STRICT");
}

std::string TableLayout::selectSql() const
{
    return "SELECT pk, " + columnNames(*this, ", ") + "checksum FROM " + name;
}

std::string TableLayout::insertSql() const
{
    std::string placeholders;
    for (std::size_t i = 0; i < columns.size(); ++i)
        placeholders += "?, ";
    return "INSERT INTO " + name + " (" + columnNames(*this, ", ") + "checksum, pk) VALUES (" + placeholders + "?, ?)";
}

std::string TableLayout::updateSql() const
{
    return "UPDATE " + name + " SET " + columnNames(*this, " = ?, ") + "checksum = ? WHERE pk = ?";
}

std::string TableLayout::deleteSql() const
{
    return "DELETE FROM " + name + " WHERE pk = ?";
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

void writeRow(SQLite::Statement& statement, const Row& row, std::optional<std::int64_t> key)
{
    // An earlier run that failed has reported its error; resetting would report it again.
    statement.tryReset();
    int parameter = 1;
    for (const Value& value : row)
        std::visit([&](const auto& field) { statement.bind(parameter++, field); }, value);
    statement.bind(parameter++, checksum(row));
    if (key)
        statement.bind(parameter, *key);
    else
        statement.bind(parameter);
    statement.exec();
    statement.reset();
}
