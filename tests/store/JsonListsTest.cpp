// SPDX-License-Identifier: GPL-3.0-or-later
#include "JsonLists.h"
#include "StoreError.h"
#include "Testing.h"

TEST(JsonLists, ofAnyOtherFormAreRefused)
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
    for (const char* list : {R"(["a",1])", R"([null])", R"("a")", R"({"a":"b"})", R"(["a")"})
        EXPECT_THROW(static_cast<void>(decodedStrings(list)), StoreError) << list;
}
