// SPDX-License-Identifier: GPL-3.0-or-later
#include "CountingRecords.h"
#include "AppSettings.h"
#include "DayEditor.h"
#include "Eventually.h"
#include "FixedClock.h"
#include "ModelContainer.h"
#include "ModelContext.h"
#include "Month.h"
#include "StoreError.h"
#include "StoredMonths.h"
#include "Testing.h"
#include "UndoHistory.h"
#include "UsualWeekPlanner.h"

#include <QTemporaryDir>

#include <SQLiteCpp/Database.h>

using Days = QList<QDate>;

class CountingRecordsTest : public testing::Test {
protected:
    CountingRecordsTest()
    {
        context.insert(settings);
        QObject::connect(&counting, &CountingRecords::changed, [this] { ++changes; });
    }

    /// The rows of a table on disk, by key and checksum.
    [[nodiscard]] std::string rows(const char* table) const
    {
        SQLite::Database store(path.toStdString());
        return store.execAndGet(std::string("SELECT group_concat(pk || checksum) FROM ") + table).getString();
    }
    [[nodiscard]] Days dates() const
    {
        Days dates;
        for (const DayOff& dayOff : counting.daysOff())
            dates += dayOff.date;
        return dates;
    }
    /// The rules as they hold: amount, first and last day.
    [[nodiscard]] QStringList rules() const
    {
        QStringList texts;
        for (const AttendanceRule& rule : counting.rules().value())
            texts += QStringList{QString::number(rule.amount), rule.from.value_or(QDate()).toString(Qt::ISODate),
                                 rule.until.value_or(QDate()).toString(Qt::ISODate)}
                         .join(u' ');
        return texts;
    }

    const QTemporaryDir folder{inMemory};
    const QString path = folder.filePath(u"Pellory.store"_s);
    ModelContainer container{{.name = {}, .path = path}};
    ModelContext& context = container.mainContext();
    const std::shared_ptr<AppSettings> settings = std::make_shared<AppSettings>();
    FixedClock clock;
    DayMarker marker{context, clock};
    CountingRecords counting{marker, *settings};
    int changes = 0;
};

TEST_F(CountingRecordsTest, withNothingChosenNothingIsStoredAndEveryFigureIsAsItWas)
{
    const auto month = findOrCreateMonth(context, clock.today());
    DayEditor editor(marker);
    for (const qsizetype index : {3, 4, 5}) {
        editor.setDayState(*month, index, DayState::OUT_OF_OFFICE);
        editor.cycleDayState(*month, index);
    }
    EXPECT_TRUE(counting.setLeavesOutVacation(false) && counting.removeHolidayRegion(clock.today()) &&
                counting.removeDaysOff({clock.today()}) &&
                counting.setTreatment(AbsenceKind::sick, Treatment::OutOfOffice) && counting.setUsualWeek({{}, true}));
    settings->vacationDaysCountAsInOffice = true;
    context.save();
    EXPECT_TRUE(counting.counting().value() == Counting() && counting.rules().value().isEmpty());
    EXPECT_EQ(changes, 0);
    for (const char* table : {"absence_kind", "day_absence", "day_off", "holiday_region", "work_week", "counting",
                              "usual_week", "attendance_rule"})
        EXPECT_EQ(rows(table), "") << table;
    SQLite::Database store(path.toStdString());
    EXPECT_EQ(store.execAndGet("SELECT sum(absence_before = 0 AND absence_after = 0) FROM day_change").getInt(), 6);
}

TEST_F(CountingRecordsTest, bothWaysToCountVacationExcludeEachOtherInOneSave)
{
    settings->vacationDaysCountAsInOffice = true;
    context.save();
    EXPECT_TRUE(counting.setLeavesOutVacation(true));
    EXPECT_FALSE(settings->vacationDaysCountAsInOffice || context.hasChanges());
    EXPECT_TRUE(counting.leavesOutVacation().value());
    EXPECT_EQ(changes, 1);
    const auto before = rows("counting");
    settings->vacationDaysCountAsInOffice = true;
    EXPECT_FALSE(counting.leavesOutVacation().value());
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(rows("counting"), before) << "not before the switch itself";
    context.save();
    EXPECT_EQ(rows("counting"), "");
    EXPECT_TRUE(counting.setLeavesOutVacation(false));
    EXPECT_EQ(changes, 2);
}

TEST_F(CountingRecordsTest, ofADateThereIsOneDayOffAndHolidaysLeaveTheOthersAlone)
{
    const QDate today = clock.today(), past = today.addDays(-9), hand = today.addDays(2), next = today.addDays(3);
    const auto holiday = [](QDate date, const QString& name) { return DayOff{date, name, DayOffSource::Holidays}; };
    const QList<DayOff> bavaria{holiday(past, u"a"_s), holiday(hand, u"b"_s), holiday(next, u"c"_s)};
    EXPECT_TRUE(counting.addDaysOff({{hand, u"first"_s}, {hand, u"Moving"_s}}));
    EXPECT_TRUE(counting.setHolidays({u"DE-BY"_s, 2027}, bavaria, today));
    EXPECT_EQ(dates(), Days({past, hand, next}));
    EXPECT_EQ(counting.counting().value().dayOff(hand)->name, u"Moving"_s);
    EXPECT_EQ(changes, 2);
    const auto before = rows("day_off");
    EXPECT_TRUE(counting.setHolidays({u"DE-BY"_s, 2026}, bavaria, today) && counting.addDaysOff(counting.daysOff()));
    EXPECT_EQ(counting.holidayRegion()->lastYear, 2027);
    EXPECT_EQ(rows("day_off"), before) << "what is equal is not written again";
    EXPECT_EQ(changes, 2);
    EXPECT_FALSE(counting.addDaysOff({{today, {}}, {QDate(), {}}})) << "one of which could not be read again";
    EXPECT_EQ(rows("day_off"), before);
    EXPECT_TRUE(counting.setHolidays({u"AT"_s, 2027}, {holiday(today, u"d"_s)}, today));
    EXPECT_EQ(dates(), Days({past, today, hand}));
    EXPECT_TRUE(counting.removeHolidayRegion(today) && counting.removeDaysOff({past}));
    EXPECT_EQ(dates(), Days({hand}));
    EXPECT_FALSE(counting.holidayRegion());
}

TEST_F(CountingRecordsTest, aKindOfAbsenceIsSavedWithItsDayAndOneThatWasRemovedIsNone)
{
    const auto month = findOrCreateMonth(context, clock.today());
    const qsizetype index = *month->indexOf(20);
    const auto jury = counting.addAbsenceKind(u"  Jury  duty "_s);
    ASSERT_TRUE(jury && counting.addAbsenceKind(u"jury DUTY"_s) == jury && !counting.addAbsenceKind(u" "_s));
    EXPECT_EQ(counting.addAbsenceKind(u"sick"_s)->id, AbsenceKind::sick);
    EXPECT_TRUE(counting.setTreatment(AbsenceKind::sick, Treatment::LeftOut));
    EXPECT_TRUE(counting.setTreatment(jury->id, Treatment::InOffice));
    EXPECT_FALSE(counting.setTreatment(99, Treatment::InOffice));
    changes = 0;
    marker.markAbsence(*month, index, jury->id);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(marker.absences().describe(DayState::OUT_OF_OFFICE, jury->id), u"Out of Office (Jury duty)"_s);
    const auto countedDay = [&] {
        return counting.counting().value().count(clock.today(), DayState::OUT_OF_OFFICE, false);
    };
    EXPECT_TRUE(countedDay().isInOffice);
    context.add(AbsenceKind{.id = jury->id, .name = u"A duplicate"_s});
    context.add(DayAbsence{clock.today(), AbsenceKind::sick}); // another one
    EXPECT_TRUE(counting.removeAbsenceKind(jury->id));
    EXPECT_FALSE(countedDay().isInOffice || countedDay().absenceKind != 0);
    EXPECT_EQ(marker.absences().describe(DayState::OUT_OF_OFFICE, jury->id), u"Out of Office"_s);
    EXPECT_EQ(counting.absenceKinds().size(), 4);
    DayEditor(marker).cycleDayState(*month, index);
    EXPECT_EQ(rows("day_absence"), "");
    EXPECT_GT(counting.addAbsenceKind(u"Parental leave"_s)->id, jury->id) << "undo may bring the old one back";
    EXPECT_FALSE(counting.removeAbsenceKind(AbsenceKind::sick));
}

TEST_F(CountingRecordsTest, aRuleThatIsChangedFromADayOnEndsBeforeIt)
{
    const QDate may(2026, 5, 1), june(2026, 6, 1), july(2026, 7, 1), august(2026, 8, 1);
    using Date = std::optional<QDate>;
    // From and until before and after the change, the day from which it holds, and the rules then.
    const std::tuple<Date, Date, Date, Date, QDate, QStringList> rows[]{
        {{}, {}, {}, {}, june, {u"1  2026-05-31"_s, u"2 2026-06-01 "_s}},
        {may, august, may, august, june, {u"1 2026-05-01 2026-05-31"_s, u"2 2026-06-01 2026-08-01"_s}},
        {{}, {}, july, {}, june, {u"1  2026-06-30"_s, u"2 2026-07-01 "_s}},
        {june, {}, june, {}, june, {u"2 2026-06-01 "_s}},
        {july, {}, july, {}, june, {u"2 2026-07-01 "_s}},
        {{}, may, {}, may, june, {u"2  2026-05-01"_s}},
        {{}, may, {}, {}, june, {u"1  2026-05-01"_s, u"2 2026-06-01 "_s}},
    };
    for (const auto& [from, until, newFrom, newUntil, day, expected] : rows) {
        EXPECT_TRUE(counting.addRule({.id = {}, .name = {}, .amount = 1, .from = from, .until = until}) &&
                    counting.addRule({.id = {}, .name = {}, .amount = 9}));
        AttendanceRule rule = counting.rules().value().first();
        rule.amount = 2, rule.from = newFrom, rule.until = newUntil;
        changes = 0;
        EXPECT_TRUE(counting.changeRule(rule, day));
        EXPECT_EQ(changes, 1);
        EXPECT_EQ(rules(), expected + QStringList(u"9  "_s));
        const auto changed = counting.rules().value();
        for (qsizetype i = 0; i < changed.size(); ++i) {
            EXPECT_EQ(changed.at(i).position, i);
            EXPECT_TRUE(counting.removeRule(changed.at(i).id));
            EXPECT_FALSE(counting.removeRule(changed.at(i).id) || counting.changeRule(changed.at(i)));
        }
    }
    EXPECT_FALSE(counting.addRule({.id = {}, .name = {}, .amount = 0})) << "which could not be read again";
}

TEST_F(CountingRecordsTest, aUsualWeekPlansFreeWorkdaysAndEachNewMonthOnce)
{
    const auto planned = [&] {
        QStringList days;
        for (const auto& month : context.fetchMonths()) {
            for (const Day& day : month->days.value()) {
                if (day.state == DayState::WILL_BE_IN_OFFICE)
                    days += month->dateOf(day.id).toString(u"Md"_s);
            }
        }
        return days.join(u' ');
    };
    UsualWeekPlanner planner(marker, counting, clock);
    UndoHistory history(marker);
    const DaySpan november{{2026, 11, 1}, {2026, 11, 30}};
    EXPECT_EQ(planner.plan(november), 0);
    EXPECT_EQ(rows("month"), "");
    marker.mark({{{2026, 11, 27}, DayState::OUT_OF_OFFICE}}, ChangedBy::Hand);
    EXPECT_TRUE(counting.addDaysOff({{{2026, 11, 23}}}) && counting.setUsualWeek({Weekdays(0b110001), false}));
    EXPECT_EQ(planner.plan(november), 2);
    EXPECT_EQ(planned(), u"1120 1130"_s);
    EXPECT_EQ(planner.plan(november), 0);
    EXPECT_TRUE(history.undo());
    EXPECT_EQ(planned(), u""_s);

    EXPECT_EQ(planner.quarterMonths(context, {2027, 2}).size(), 3);
    EXPECT_TRUE(counting.setUsualWeek({Weekdays(0b1), true}));
    for (const YearQuarter& quarter : {YearQuarter{2026, 3}, YearQuarter{2026, 4}, YearQuarter{2027, 2}})
        EXPECT_EQ(planner.quarterMonths(context, quarter).size(), 3);
    EXPECT_EQ(planned(), u"127 1214 1221 1228"_s);
    EXPECT_EQ(planner.findOrCreateMonth(context, {2027, 2, 3})->month, 2);
    EXPECT_EQ(planned(), u"127 1214 1221 1228 21 28 215 222"_s);
    EXPECT_TRUE(history.undo() && history.undo());
    EXPECT_EQ(planner.quarterMonths(context, {2026, 4}).size(), 3);
    EXPECT_EQ(planned(), u""_s);
    EXPECT_TRUE(counting.setUsualWeek({{}, true}));
    EXPECT_EQ(rows("usual_week"), "");
}

TEST_F(CountingRecordsTest, whatCannotBeReadAtFirstIsReadLaterAndBindingsFollow)
{
    EXPECT_TRUE(counting.setWorkWeek({{2026, 1, 1}, Weekdays(1)}));
    QFile file(path);
    ASSERT_TRUE(file.open(QFile::ReadOnly));
    const QByteArray small = file.readAll();
    for (int month = 1; month <= 12; ++month)
        context.insert(std::make_shared<Month>(2026, month));
    context.save();
    ModelContainer opened({.name = {}, .path = path});
    DayMarker lateMarker(opened.mainContext(), clock);
    CountingRecords late(lateMarker, *settings);
    QFile overwritten(path);
    ASSERT_TRUE(overwritten.open(QFile::WriteOnly) && overwritten.write(small) && overwritten.flush());
    const QProperty<int> workdays{Qt::makePropertyBinding([&] {
        const Counting first = late.counting(), again = late.counting();
        return int(first.isWorkday({2026, 11, 20})) + int(again.isWorkday({2026, 11, 20})) +
               int(late.rules().value().size());
    })};
    EXPECT_EQ(workdays.value(), 2);
    const QDate friday(2026, 11, 20);
    EXPECT_THROW(lateMarker.mark({{friday, DayState::OUT_OF_OFFICE, AbsenceKind::sick}}, ChangedBy::Hand), StoreError);
    EXPECT_FALSE(late.setWorkWeek({{2026, 1, 1}, Weekdays(2)}));
    EXPECT_TRUE(opened.mainContext().keepRecords());
    EXPECT_TRUE(eventually([&] { return workdays.value() == 0; }));
}
