// SPDX-License-Identifier: GPL-3.0-or-later
#include "DayCommands.h"
#include "AppSettings.h"
#include "BackupService.h"
#include "CommandError.h"
#include "CountingRecords.h"
#include "DayMarker.h"
#include "FixedClock.h"
#include "ModelContainer.h"
#include "ModelContext.h"
#include "PelloryInterface.h"
#include "ScriptService.h"
#include "StatusText.h"
#include "Testing.h"
#include "UndoHistory.h"

#include <QDBusMessage>
#include <QSignalSpy>
#include <QTemporaryDir>

class DayCommandsTest : public testing::Test {
protected:
    const QTemporaryDir folder{inMemory};
    ModelContainer container{{u"Test"_s, folder.filePath(u"Pellory.store"_s)}};
    FixedClock clock; // on 20 November 2026
    AppSettings settings;
    DayMarker marker{container.mainContext(), clock};
    UndoHistory history{marker};
    CountingRecords counting{marker, settings};
    const DayCommands::Parts parts{marker, history, counting, settings, clock, [] { return Qt::Monday; }};
    DayCommands commands{parts};
};

TEST_F(DayCommandsTest, statusHasTheFiguresOfTheTrackersAndRules)
{
    settings.daysPerWeekGoals = AppSettings::Goals{Goal::create(u"1.0"_s, u"Team"_s)};
    counting.addRule({.name = u"Together"_s, .amount = 200, .unit = AttendanceRule::Unit::Days});
    commands.mark({{u"2026-11-19"_s, u"IN_OFFICE"_s},
                   {u"2026-10-01"_s, u"IN_OFFICE"_s},
                   {u"2026-11-23"_s, u"WILL_BE_IN_OFFICE"_s}});
    marker.mark({{clock.today(), DayState::OUT_OF_OFFICE, AbsenceKind::sick}}, ChangedBy::Hand);
    EXPECT_EQ(statusText(commands.status()), u"Friday, 20 November 2026: Out of Office (Sick)\n"
                                             "1 days in the office this month. 4 more days to reach goal Team\n"
                                             "2 days in the office this quarter. 12 more days to reach goal Team\n"
                                             "Together: 1 of 2 days. Reached with the planned days"_s);
    const QByteArray json = statusJson(commands.status());
    for (const char* part : {R"("average":0.24,)", R"("state":"OUT_OF_OFFICE")", R"("verdict":"KEPT_WITH_PLANNED")",
                             R"({"daysPerWeek":1,"name":"Team","needed":5,"remaining":4})", R"("span":"MONTH")"})
        EXPECT_TRUE(json.contains(part)) << part << json.constData();
}

TEST_F(DayCommandsTest, marksAllOrNoneAndKeepsTheKindOfADayThatIsOutAlready)
{
    marker.mark({{clock.today(), DayState::OUT_OF_OFFICE, AbsenceKind::sick}}, ChangedBy::Hand);
    const auto state = [&] { return commands.status().value(u"text"_s).toString(); };
    commands.mark({{u"2026-11-20"_s, u"OUT_OF_OFFICE"_s}});
    EXPECT_THROW(commands.mark({{u"2026-11-20"_s, u"IN_OFFICE"_s}, {u"0000-11-20"_s, u"IN_OFFICE"_s}}), CommandError);
    EXPECT_EQ(state(), u"Out of Office (Sick)"_s);
    QFile::remove(container.configuration().path);
    EXPECT_THROW(commands.mark({{u"2026-11-20"_s, u"IN_OFFICE"_s}}), CommandError) << "which is not on disk";
}

TEST_F(DayCommandsTest, servesOneStoreAfterAnotherAndAnnouncesChangesOnceATurn)
{
    BackupService backups(marker, clock);
    QObject host;
    int checks = 0;
    settings.daysPerWeekGoals = AppSettings::Goals{Goal::create(u"1.0"_s, {})};
    std::optional<ScriptService> before(std::in_place, parts, backups, [] {});
    before->start(host);
    auto* interface = host.findChild<PelloryInterface*>();
    before.reset(); // as when the program starts over
    EXPECT_TRUE(interface->GetStatus({}).isEmpty());
    ScriptService service(parts, backups, [&] { ++checks; });
    service.start(host);
    EXPECT_FALSE(interface->GetStatus({}).isEmpty());
    const QSignalSpy changed(interface, &PelloryInterface::Changed);
    const auto announced = [&] {
        QCoreApplication::processEvents();
        return changed.size();
    };
    EXPECT_EQ(announced(), 0);
    marker.mark({{clock.today(), DayState::OUT_OF_OFFICE, AbsenceKind::sick}}, ChangedBy::Hand);
    commands.mark({{u"2026-11-19"_s, u"IN_OFFICE"_s}});
    EXPECT_EQ(announced(), 1);
    commands.mark({{u"2026-11-19"_s, u"IN_OFFICE"_s}});
    EXPECT_EQ(announced(), 1);
    settings.daysPerWeekGoals.value().first()->wantedDaysPerWeek = u"2.50"_s;
    EXPECT_EQ(announced(), 2);
    clock.beginDay(clock.today().addDays(1));
    EXPECT_EQ(announced(), 3);
    settings.wifiTrackingEnabled = true;
    EXPECT_THROW(service.runCheck(), CommandError) << "which waits for the first run";
    settings.firstTime = false;
    service.runCheck();
    EXPECT_EQ(checks, 1);
    EXPECT_EQ(announced(), 3);
}
