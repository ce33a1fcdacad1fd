// SPDX-License-Identifier: GPL-3.0-or-later
#include "DayEditor.h"
#include "DayMarker.h"
#include "DayNote.h"
#include "DayNotes.h"
#include "DayRecords.h"
#include "FixedClock.h"
#include "ModelContainer.h"
#include "ModelContext.h"
#include "Month.h"
#include "StoredDays.h"
#include "StoredMonths.h"
#include "Testing.h"

#include <QTemporaryDir>

using namespace std::chrono_literals;

TEST(MarkingTest, aClickSavesAndCorrectsTheKindOfDayAndOnlyAQuarterTakesDuplicates)
{
    const QTemporaryDir folder(inMemory);
    const QString path = folder.filePath(u"Pellory.store"_s);
    FixedClock clock;
    ModelContainer container({.name = {}, .path = path});
    ModelContext& context = container.mainContext();
    const auto november = findOrCreateMonth(context, {2026, 11, 20});
    november->days = {{20, DayState::UNKNOWN, false}};
    context.save();
    DayMarker marker(context, clock);
    DayEditor editor(marker);
    QList<qint64> groups;
    QObject::connect(&marker, &DayMarker::changed, [&](const ChangedDays& days) { groups.append(days.group); });
    editor.setDayState(*november, 0, DayState::VACATION_DAY);
    EXPECT_EQ(november->days.value(), (QList<Day>{{20, DayState::VACATION_DAY, false}}));
    EXPECT_TRUE(context.hasChanges());
    editor.cycleDayState(*november, 0);
    EXPECT_EQ(november->days.value(), (QList<Day>{{20, DayState::WILL_BE_IN_OFFICE, true}}));
    EXPECT_FALSE(context.hasChanges());
    for (const auto pause : {2s, 3s, 0s}) { // a group is open for two seconds, to changes of this day
        clock.advance(pause);
        editor.cycleDayState(*november, 0);
    }
    marker.mark({{{2026, 12, 20}, DayState::IN_OFFICE}, {{2026, 11, 20}, DayState::IN_OFFICE}}, ChangedBy::Hand);
    editor.cycleDayState(*november, 0);
    EXPECT_EQ(groups, QList<qint64>({1, 1, 1, 2, 2, 3, 4}));
    const CountedDays counted = countedDays(context, {{2026, 9, 30}, {2027, 1, 31}}, {}, false);
    EXPECT_EQ(counted.in({{2026, 11, 20}, {2026, 11, 20}}).front().state, november->days.value().first().state);
    EXPECT_TRUE(counted.on({2026, 12, 20}).isInOffice);
    EXPECT_EQ(counted.in({{2026, 11, 21}, {2026, 11, 21}}).front().state, DayState::UNKNOWN);
    EXPECT_EQ(context.fetchMonths().size(), 2); // none was created
    Month sample(2026, 11);
    editor.cycleDayState(sample, 20);
    EXPECT_EQ(groups.size(), 7);
    EXPECT_FALSE(context.hasChanges());
    context.insert(std::make_shared<Month>(2026, 11));
    EXPECT_EQ(quarterMonths(context, {2026, 4}).first()->month, 10);
    EXPECT_EQ(context.fetchMonths().size(), 4); // with the second November
    EXPECT_THROW((void)findOrCreateMonth(context, {2026, 11, 20}), DuplicateMonthError);
    context.save();
    QFile(path).resize(10); // and what is recorded now has groups of its own
    for (const DayState state : {DayState::VACATION_DAY, DayState::IN_OFFICE})
        marker.mark({{{2026, 12, 20}, state}}, ChangedBy::Hand);
    EXPECT_GT(groups.at(8), groups.at(7));
}

TEST(MarkingTest, dayRecordsAreWhatIsStoredAboutEachDay)
{
    const QTemporaryDir folder(inMemory);
    FixedClock clock;
    ModelContainer container({.name = {}, .path = folder.filePath(u"Pellory.store"_s)});
    DayMarker marker(container.mainContext(), clock);
    const auto day = [](int dayOfMonth) { return QDate(2026, 11, dayOfMonth); };
    marker.mark({{day(4), DayState::OUT_OF_OFFICE, AbsenceKind::sick}, {day(5), DayState::IN_OFFICE}}, ChangedBy::Hand);
    marker.mark({{day(5), DayState::UNKNOWN}, {day(6), DayState::IN_OFFICE}}, ChangedBy::Check);
    findOrCreateMonth(container.mainContext(), day(9))->days = {
        {4, DayState::OUT_OF_OFFICE, true}, {6, DayState::VACATION_DAY, true}, {9, DayState::IN_OFFICE, true}};
    for (const int noted : {2, 5})
        marker.notes().write(marker.notes().noteOf(day(noted)), u"Note"_s);
    container.mainContext().add(DayOff{day(3), u"Fair"_s});

    const QList<DayRecord> records = dayRecords(marker, {day(3), day(8)});
    ASSERT_EQ(records.size(), 4);
    EXPECT_EQ(records.at(0), (DayRecord{.date = day(3), .dayOff = DayOff{day(3), u"Fair"_s}}));
    EXPECT_EQ(records.at(1).absenceKind, AbsenceKind::sick);
    EXPECT_EQ(records.at(1).lastChange.value().by, ChangedBy::Hand);
    EXPECT_EQ(records.at(2).note, u"Note"_s);
    EXPECT_EQ(records.at(2).lastChange.value().by, ChangedBy::Check);
    EXPECT_EQ(records.at(3), (DayRecord{.date = day(6), .state = DayState::VACATION_DAY})) << "not as it was marked";
    EXPECT_EQ(dayRecords(marker, wholeCalendar()).size(), 6);
}
