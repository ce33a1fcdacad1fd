// SPDX-License-Identifier: GPL-3.0-or-later
#include "JsonLists.h"
#include "StoreError.h"

namespace {

template <class List, class Decode, class Encode> void check(const std::string& text, Decode decoded, Encode encoded)
{
    List list;
    try {
        list = decoded(text);
    } catch (const StoreError& error) {
        if (error.description().isEmpty())
            qFatal("It is refused without a reason");
    }
    if (decoded(encoded(list)) != list)
        qFatal("What was written reads differently");
}

} // namespace

// NOLINTNEXTLINE(readability-identifier-naming): libFuzzer looks for this name
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    check<QList<Day>>(text, decodedDays, encodedDays);
    check<QStringList>(text, decodedStrings, encodedStrings);
    return 0;
}
