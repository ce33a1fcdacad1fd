// SPDX-License-Identifier: GPL-3.0-or-later
#include "DayHistory.h"
#include "Testing.h"

#include <QDateTime>

using enum DayState;

namespace {

DayChange change(QDateTime time, DayState before, DayState after, ChangedBy by, qint64 group, QString network = {})
{
    return {.time = time.toMSecsSinceEpoch(),
            .date = {2026, 11, 19},
            .before = before,
            .after = after,
            .by = by,
            .group = group,
            .network = network};
}

QDateTime at(QDate date)
{
    return {date, {18, 3}};
}

} // namespace

TEST(DayHistoryTest, aGroupIsOneStepAndOneThatLedNowhereIsNone)
{
    const QDate day(2026, 11, 19);
    const auto check = change(at(day), UNKNOWN, IN_OFFICE, ChangedBy::Check, 1, u"Head Office"_s);
    const auto undo = change(at({2026, 11, 20}), IN_OFFICE, UNKNOWN, ChangedBy::Undo, 2);
    const auto first = change(at({2027, 1, 2}), UNKNOWN, IN_OFFICE, ChangedBy::Hand, 3);
    const auto second = change(at({2027, 1, 2}), IN_OFFICE, VACATION_DAY, ChangedBy::Hand, 3);
    const auto there = change(at(day), VACATION_DAY, UNKNOWN, ChangedBy::Hand, 4);
    const auto back = change(at(day), UNKNOWN, VACATION_DAY, ChangedBy::Hand, 4);
    auto training = change(at(day), OUT_OF_OFFICE, OUT_OF_OFFICE, ChangedBy::Hand, 6);
    auto trip = change(at(day), VACATION_DAY, OUT_OF_OFFICE, ChangedBy::Hand, 5);
    training.absenceBefore = trip.absenceAfter = 2;
    training.absenceAfter = 4;
    QStringList texts;
    for (const PastState& state : DayHistory::states({training, trip, back, there, second, first, undo, check})) {
        texts += rawValue(state.state) + u' ' + DayHistory::describe(state, {2026, 11, 21});
        if (state.absenceKind != 0)
            texts.last() += u' ' + QString::number(state.absenceKind);
    }
    EXPECT_THAT(texts, testing::ElementsAre(u"OUT_OF_OFFICE By hand, 18:03 4"_s, u"OUT_OF_OFFICE By hand, 18:03 2"_s,
                                            u"VACATION_DAY By hand, 2 January 2027, 18:03"_s,
                                            u"UNKNOWN Undone, 20 November, 18:03"_s,
                                            u"IN_OFFICE Automatically, 18:03, Head Office"_s,
                                            u"UNKNOWN Before the first recorded change"_s));
    EXPECT_EQ(DayHistory::states({}), QList<PastState>());
}
