// SPDX-License-Identifier: GPL-3.0-or-later
#include "JsonLists.h"
#include "StoreError.h"
#include "Testing.h"

TEST(JsonLists, daysHaveThreeKeysInOrder)
{
    const QList<Day> days{{-5, DayState::UNKNOWN, false}, {9223372036854775807, DayState::WILL_BE_IN_OFFICE, true}};
    const std::string json = R"([{"id":-5,"state":"UNKNOWN","isWorkday":false},)"
                             R"({"id":9223372036854775807,"state":"WILL_BE_IN_OFFICE","isWorkday":true}])";
    EXPECT_EQ(encodedDays(days), json);
    EXPECT_EQ(decodedDays(json), days);
}

TEST(JsonLists, daysOfAnyOtherFormAreRefused)
{
    const auto refuse = [](const std::string& json) {
        EXPECT_THROW(static_cast<void>(decodedDays(json)), StoreError) << json;
    };
    for (const auto* id : {"\"1\"", "1.5", "true", "null", "9223372036854775808"})
        refuse(R"([{"id":)" + std::string(id) + R"(,"state":"UNKNOWN","isWorkday":true}])");
    for (const auto* state : {"\"unknown\"", "\"Unknown\"", "\"\"", "0", "null"})
        refuse(R"([{"id":1,"state":)" + std::string(state) + R"(,"isWorkday":true}])");
    for (const auto* isWorkday : {"1", "\"true\"", "null"})
        refuse(R"([{"id":1,"state":"UNKNOWN","isWorkday":)" + std::string(isWorkday) + "}]");
    for (const auto* list : {R"([{"state":"UNKNOWN","isWorkday":true}])", R"([{"id":1,"isWorkday":true}])",
                             R"([{"id":1,"state":"UNKNOWN"}])", R"([{"Id":1,"state":"UNKNOWN","isWorkday":true}])",
                             R"({"id":1,"state":"UNKNOWN","isWorkday":true})", "[null]", "[] []", "["})
        refuse(list);
}

TEST(JsonLists, stringsComeBackAsTheyWere)
{
    const QStringList strings{u""_s, u" "_s, u"\"\\\n\t%1'"_s, u"a\0b"_s, u"Büro"_s, u"事務所 \U0001F3E2 \u2028"_s};
    EXPECT_EQ(decodedStrings(encodedStrings(strings + strings)), strings + strings);
    for (const char* list : {R"(["a",1])", R"([null])", R"("a")", R"({"a":"b"})", R"(["a")"})
        EXPECT_THROW(static_cast<void>(decodedStrings(list)), StoreError) << list;
}
