// SPDX-License-Identifier: GPL-3.0-or-later
#include "DayState.h"
#include "Testing.h"

TEST(DayState, isStoredAndDescribedWordForWord)
{
    const QString raws[]{u"UNKNOWN"_s, u"IN_OFFICE"_s, u"OUT_OF_OFFICE"_s, u"VACATION_DAY"_s, u"WILL_BE_IN_OFFICE"_s};
    const QString descriptions[]{u"Unknown"_s, u"In the Office"_s, u"Out of Office"_s, u"Vacation Day"_s,
                                 u"Will Be In Office"_s};
    for (std::size_t i = 0; i < allDayStates.size(); ++i) {
        EXPECT_EQ(QString(rawValue(allDayStates.at(i))), raws[i]);
        EXPECT_EQ(description(allDayStates.at(i)), descriptions[i]);
        EXPECT_EQ(dayStateFromRawValue(raws[i]), static_cast<DayState>(i));
    }
    for (const auto& raw : {u""_s, u"in_office"_s, u"IN_OFFICE "_s, u"IN_OFFIC"_s, u"In the Office"_s})
        EXPECT_EQ(dayStateFromRawValue(raw), std::nullopt) << raw.toStdString();
}
