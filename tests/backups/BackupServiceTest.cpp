// SPDX-License-Identifier: GPL-3.0-or-later
#include "BackupService.h"
#include "DayMarker.h"
#include "Eventually.h"
#include "FixedClock.h"
#include "ModelContainer.h"
#include "ModelContext.h"
#include "StoreError.h"
#include "Testing.h"
#include "UndoHistory.h"

#include <QDir>
#include <QTemporaryDir>

using namespace std::chrono_literals;

class BackupServiceTest : public testing::Test {
protected:
    BackupServiceTest() { follow(*service); }

    void follow(BackupService& followed)
    {
        QObject::connect(&followed, &BackupService::made, &followed, [this] { ++made; });
        QObject::connect(&followed, &BackupService::failed, &followed, [this] { ++failures; });
        QObject::connect(&followed, &BackupService::restored, &followed, [this] { ++restores; });
        QObject::connect(&followed, &BackupService::restoreFailed, &followed, [this] { ++failures; });
    }
    void mark(int day, DayState state) { marker.mark({{{2026, 11, day}, state}}, ChangedBy::Hand); }
    [[nodiscard]] DayStates states() const { return readStore(configuration.path); }
    [[nodiscard]] bool isStill() const
    {
        QCoreApplication::processEvents();
        return !service->isMaking();
    }

    const QTemporaryDir folder{inMemory};
    const ModelConfiguration configuration{.name = {}, .path = folder.filePath(u"Pellory.store"_s)};
    std::unique_ptr<ModelContainer> container = std::make_unique<ModelContainer>(configuration);
    FixedClock clock;
    DayMarker marker{container->mainContext(), clock};
    UndoHistory history{marker};
    std::unique_ptr<BackupService> service = std::make_unique<BackupService>(marker, clock, 0ms);
    int made = 0;
    int failures = 0;
    int restores = 0;
};

TEST_F(BackupServiceTest, makesOneBackupOnEachDayWithAChangeAndTriesAgainAfterAFailure)
{
    QFile(service->folder().path()).open(QFile::WriteOnly); // in the way
    service->start();
    ASSERT_TRUE(eventually([&] { return failures == 1; }));
    EXPECT_FALSE(service->problem().value().isEmpty());
    EXPECT_TRUE(isStill()) << "it is not tried again and again";
    const QString backups = service->folder().path();
    ASSERT_TRUE(QFile::remove(backups) && QDir().mkdir(backups));
    QFile(backups + "/Pellory 2100-01-01 00.00.00.store"_L1).open(QFile::WriteOnly); // the clock was set back since
    mark(2, DayState::IN_OFFICE);
    ASSERT_TRUE(eventually([&] { return made == 1; }));
    EXPECT_EQ(service->problem().value(), QString());
    mark(3, DayState::IN_OFFICE);
    EXPECT_TRUE(isStill());
    const QString away = backups + "-away"_L1;
    QDir().rename(backups, away);
    QFile(backups).open(QFile::WriteOnly);
    service->makeNow();
    ASSERT_TRUE(eventually([&] { return failures == 2; }));
    QFile::remove(backups);
    QDir().rename(away, backups);
    mark(4, DayState::IN_OFFICE);
    ASSERT_TRUE(eventually([&] { return made == 2; })) << "although there is one of today";
    mark(5, DayState::IN_OFFICE);
    clock.advance(24h);
    ASSERT_TRUE(eventually([&] { return made == 3; }));
    EXPECT_EQ(readBackup(service->folder().backups().at(1).path), states());
    clock.advance(24h);
    EXPECT_TRUE(isStill()) << "nothing has changed";
}

TEST_F(BackupServiceTest, restoresDaysAsOneUndoStepAfterABackup)
{
    const QDate second(2026, 11, 2);
    marker.mark({{second, DayState::OUT_OF_OFFICE, AbsenceKind::sick}}, ChangedBy::Hand);
    mark(3, DayState::OUT_OF_OFFICE);
    service->makeNow();
    ASSERT_TRUE(eventually([&] { return made == 1; }));
    const QString file = service->folder().backups().first().path;
    marker.mark({{second, DayState::OUT_OF_OFFICE, AbsenceKind::training}}, ChangedBy::Hand);
    mark(3, DayState::VACATION_DAY);
    mark(4, DayState::IN_OFFICE);
    marker.mark({{{2027, 1, 4}, DayState::IN_OFFICE}}, ChangedBy::Hand); // a month that the backup does not hold
    const auto before = states();
    const auto differing = service->compare(file).result();
    EXPECT_EQ(differing, (QList<DayDifference>{{second, DayState::OUT_OF_OFFICE, DayState::OUT_OF_OFFICE,
                                                AbsenceKind::training, AbsenceKind::sick},
                                               {{2026, 11, 3}, DayState::VACATION_DAY, DayState::OUT_OF_OFFICE},
                                               {{2026, 11, 4}, DayState::IN_OFFICE, DayState::UNKNOWN}}));

    const QString backups = service->folder().path();
    ASSERT_TRUE(QFile::rename(backups, backups + u"2"_s) && QFile(backups).open(QFile::WriteOnly));
    service->restore(differing);
    ASSERT_TRUE(eventually([&] { return failures == 1; }));
    EXPECT_EQ(states(), before);
    ASSERT_TRUE(QFile::remove(backups) && QFile::rename(backups + u"2"_s, backups));
    clock.advance(1s);
    service->restore(differing);
    ASSERT_TRUE(eventually([&] { return restores == 1; }));
    EXPECT_EQ(service->compare(file).result(), QList<DayDifference>());
    EXPECT_EQ(readBackup(service->folder().backups().first().path), before);
    EXPECT_TRUE(history.undo());
    EXPECT_EQ(states(), before);
    DayStates old = before; // as in a backup from before there were kinds
    for (StoredDay& day : old)
        day.absenceKind.reset();
    EXPECT_EQ(differences(before, old), QList<DayDifference>());
    old[second].state = DayState::IN_OFFICE;
    EXPECT_EQ(differences(before, old), (QList<DayDifference>{{second, DayState::OUT_OF_OFFICE, DayState::IN_OFFICE,
                                                               AbsenceKind::training, AbsenceKind::none}}));
}

TEST_F(BackupServiceTest, putsTheNewestSoundBackupInTheStoresPlace)
{
    mark(2, DayState::IN_OFFICE);
    const auto backedUp = states();
    service->makeNow();
    ASSERT_TRUE(eventually([&] { return made == 1; }));
    const QString damaged = service->folder().path() + "/Pellory 2026-11-21 09.00.00.store"_L1;
    ASSERT_TRUE(QFile(damaged).open(QFile::WriteOnly));
    mark(2, DayState::OUT_OF_OFFICE);
    const auto newest = service->findNewestSound();
    ASSERT_TRUE(eventually([&] { return newest.isFinished(); }) && newest.result());
    service->replaceStore(damaged);
    ASSERT_TRUE(eventually([&] { return failures == 1; }));
    const QString kept = configuration.path + ".replaced"_L1;
    service->replaceStore(newest.result()->path);
    ASSERT_TRUE(eventually([&] { return QFile::exists(kept); }));
    service->makeNow();
    service.reset(); // abandons it
    container = std::make_unique<ModelContainer>(configuration);
    EXPECT_EQ(states(), backedUp);
    EXPECT_EQ(readBackup(kept)[QDate(2026, 11, 2)].state, DayState::OUT_OF_OFFICE);
}
