// SPDX-License-Identifier: GPL-3.0-or-later
#include "DayImport.h"
#include "AppSettings.h"
#include "CountingRecords.h"
#include "DayNote.h"
#include "DayRecords.h"
#include "DaysCsv.h"
#include "DaysCsvReader.h"
#include "FixedClock.h"
#include "ModelContainer.h"
#include "ModelContext.h"
#include "Testing.h"
#include "UndoHistory.h"

#include <QTemporaryDir>

#include <random>

namespace {

struct Store {
    [[nodiscard]] QByteArray list() const
    {
        return daysCsv(dayRecords(marker, wholeCalendar()), marker.absences().kinds());
    }
    [[nodiscard]] DayImport compare(const QByteArray& text)
    {
        const auto contents = DaysCsvReader().read(text);
        EXPECT_EQ(contents.problems, QStringList());
        return {contents.days, contents.kinds, marker, counting};
    }
    /// Days of a year in every state, with all that can be stored about them.
    void fill(unsigned seed)
    {
        std::minstd_rand random(seed);
        const auto own = counting.addAbsenceKind(u"Own; \"kind\""_s);
        counting.setTreatment(own->id, Treatment::LeftOut);
        QHash<QDate, QString> notes;
        for (QDate date(2026, 1, 1); date.year() < 2027; date = date.addDays(1 + random() % 3)) {
            DayMark mark{date, allDayStates.at(random() % 5)};
            if (mark.state == DayState::OUT_OF_OFFICE)
                mark.absenceKind = QList{0, AbsenceKind::sick, own->id}.at(qsizetype(random() % 3));
            clock.advance(std::chrono::minutes(random() % 1000));
            marker.import({mark}, {{date,
                                    {.time = clock.now().toMSecsSinceEpoch(),
                                     .date = date,
                                     .by = ChangedBy(1 + random() % 7),
                                     .network = u"=Office, \"1\""_s}}});
            if (mark.state != DayState::UNKNOWN && random() % 3 == 0)
                notes.insert(date, u"-1,\r\n\"ß\" \U0001F600"_s);
            if (random() % 5 == 0) {
                EXPECT_TRUE(counting.addDaysOff({{date, u"'=Day, off"_s, DayOffSource(1 + random() % 3)}}));
            }
        }
        marker.notes().add(notes);
    }

    const QTemporaryDir folder{inMemory};
    ModelContainer container{{.name = {}, .path = folder.filePath(u"Pellory.store"_s)}};
    FixedClock clock;
    DayMarker marker{container.mainContext(), clock};
    AppSettings settings;
    CountingRecords counting{marker, settings};
    UndoHistory history{marker};
};

} // namespace

TEST(DayImport, ofAnExportGivesTheSameDaysInAnEmptyStoreAsOneStep)
{
    for (const unsigned seed : {1U, 2U, 3U}) {
        Store from;
        from.fill(seed);
        const QByteArray list = from.list();
        Store to;
        const DayImport found = to.compare(list);
        EXPECT_TRUE(found.conflicts().isEmpty() && found.newDays().size() > 100);
        EXPECT_EQ(to.list().count('\n'), 1) << "nothing changes before";
        EXPECT_NE(found.apply(found.newDays(), true, true), 0);
        EXPECT_EQ(to.list(), list);
        const DayImport again = to.compare(list);
        EXPECT_TRUE(again.newDays().isEmpty() && again.notes().isEmpty() && again.daysOff().isEmpty());
        EXPECT_EQ(again.keptCount(), 0);
        EXPECT_FALSE(to.history.redo()) << "an undo that was imported is none here";
        EXPECT_TRUE(to.history.undo());
        EXPECT_FALSE(to.history.undo());
        EXPECT_EQ(to.compare(list).newDays().size(), found.newDays().size());
        EXPECT_TRUE(to.history.redo());
        EXPECT_EQ(to.compare(list).sameCount(), found.newDays().size());
    }
}

TEST(DayImport, changesNothingThatIsThereUnlessItIsChosen)
{
    Store store;
    const QDate day(2026, 11, 20);
    store.marker.mark({{day, DayState::IN_OFFICE}, {day.addDays(1), DayState::OUT_OF_OFFICE, AbsenceKind::sick}},
                      ChangedBy::Hand);
    store.marker.notes().add({{day, u"mine"_s}});
    EXPECT_TRUE(store.counting.addDaysOff({{day, u"Mine"_s}}));
    const DayImport found = store.compare("date,state,absence,note,day_off\n2026-11-20,VACATION_DAY,,theirs,Theirs\n"
                                          "2026-11-21,OUT_OF_OFFICE,,,\n2026-11-22,UNKNOWN,,,\n"
                                          "2026-11-23,OUT_OF_OFFICE,Parents,new,New\n");
    EXPECT_EQ(found.conflicts().size(), 1);
    EXPECT_EQ(found.sameCount(), 1);
    EXPECT_EQ(found.keptCount(), 2);
    EXPECT_TRUE(found.hasNewKinds());
    ASSERT_EQ(found.newDays().size(), 1);
    EXPECT_EQ(found.describe(DayState::OUT_OF_OFFICE, found.newDays().first().absenceAfter),
              u"Out of Office (Parents)"_s);
    EXPECT_EQ(store.counting.absenceKinds().size(), 4) << "nothing changes before";
    EXPECT_NE(found.apply(found.newDays() + found.conflicts(), false, false), 0);
    const auto days = dayRecords(store.marker, {day, day.addDays(3)});
    EXPECT_EQ(days.first().state, DayState::VACATION_DAY);
    EXPECT_EQ(days.first().lastChange->by, ChangedBy::Import);
    EXPECT_EQ(days.first().note, u"mine"_s);
    EXPECT_EQ(days.first().dayOff->name, u"Mine"_s);
    EXPECT_TRUE(days.last().note.isEmpty() && !days.last().dayOff);
    EXPECT_EQ(store.compare("date,state,absence\n2026-11-23,OUT_OF_OFFICE,PARENTS\n").sameCount(), 1);
}

TEST(DayImport, ofACheckOfTodayIsTakenBackForThatDayAlone)
{
    Store store;
    const DayImport found =
        store.compare("date,state,changed_by,changed_at\n2026-11-19,IN_OFFICE,CHECK,2026-11-19T08:00:00Z\n"
                      "2026-11-20,IN_OFFICE,CHECK,2026-11-20T08:00:00Z\n");
    const auto group = found.apply(found.newDays(), true, true);
    EXPECT_TRUE(store.history.undoCheck({2026, 11, 20}, DayState::UNKNOWN));
    EXPECT_TRUE(store.marker.isTakenBack({2026, 11, 20}, DayState::IN_OFFICE));
    EXPECT_EQ(store.compare(store.list()).sameCount(), 1);
    EXPECT_TRUE(store.history.undo(group));
    EXPECT_EQ(store.compare(store.list()).sameCount(), 0);
}
