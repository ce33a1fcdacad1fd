// SPDX-License-Identifier: GPL-3.0-or-later
#include "JsonLists.h"

#include "StoreError.h"

#include <nlohmann/json.hpp>

using Json = nlohmann::ordered_json;

namespace {

Json encodedDay(const Day& day)
{
    return {{"id", day.id}, {"state", rawValue(day.state).data()}, {"isWorkday", day.isWorkday}};
}

QString textOf(const Json& json)
{
    return QString::fromStdString(json.get_ref<const std::string&>());
}

qint64 numberOf(const Json& json)
{
    // The library keeps positive numbers as unsigned ones, and would let a large one wrap around.
    const bool isTooLarge = json.is_number_unsigned() && json.get<quint64>() > std::numeric_limits<qint64>::max();
    if (!json.is_number_integer() || isTooLarge)
        throw StoreError(StoreError::tr("the number of a day is not an integer"));
    return json.get<qint64>();
}

Day decodedDay(const Json& json)
{
    const qint64 id = numberOf(json.at("id"));
    const QString raw = textOf(json.at("state"));
    const auto state = dayStateFromRawValue(raw);
    if (!state)
        throw StoreError(StoreError::tr("\"%1\" is not a day state").arg(raw));
    return {.id = id, .state = *state, .isWorkday = json.at("isWorkday").get_ref<const bool&>()};
}

// The library reports invalid JSON, missing keys and wrong types by exceptions of its own.
template <class Item> QList<Item> decodedList(const std::string& text, Item (*decodedItem)(const Json&))
{
    try {
        const Json json = Json::parse(text);
        if (!json.is_array())
            throw StoreError(StoreError::tr("it is not a list"));
        QList<Item> items;
        items.reserve(static_cast<qsizetype>(json.size()));
        for (const Json& item : json)
            items.append(decodedItem(item));
        return items;
    } catch (const Json::exception& error) {
        throw StoreError(QString::fromUtf8(error.what()));
    }
}

} // namespace

std::string encodedDays(const QList<Day>& days)
{
    Json list = Json::array();
    for (const Day& day : days)
        list.push_back(encodedDay(day));
    return list.dump();
}

QList<Day> decodedDays(const std::string& json)
{
    return decodedList<Day>(json, decodedDay);
}

std::string encodedStrings(const QStringList& strings)
{
    Json list = Json::array();
    for (const QString& string : strings)
        list.push_back(string.toStdString());
    return list.dump();
}

QStringList decodedStrings(const std::string& json)
{
    return decodedList<QString>(json, textOf);
}
