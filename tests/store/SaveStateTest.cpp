// SPDX-License-Identifier: GPL-3.0-or-later
#include "SaveState.h"
#include "StoreTest.h"

#include <QTimer>

class SaveStateTest : public StoreTest {};

TEST_F(SaveStateTest, whatCouldNotBeSavedIsTriedAgainWithoutAnotherChange)
{
    putSample();
    const auto container = open();
    ModelContext& context = container->mainContext();
    auto other = std::make_unique<SQLite::Database>(connection());
    other->exec("BEGIN IMMEDIATE");
    mark(*context.fetchMonths(2026, 3).first(), 31, DayState::IN_OFFICE);
    EXPECT_FALSE(context.save());
    EXPECT_TRUE(context.saveState().value().isUnsaved);
    EXPECT_EQ(context.saveState().value().problem,
              u"Another program is using the data file. Close it if this lasts."_s);
    other.reset();
    QTimer limit;
    limit.setSingleShot(true);
    limit.start(10'000);
    while (limit.isActive() && !context.saveState().value().isFine())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    EXPECT_EQ(context.saveState().value(), SaveState());
    EXPECT_EQ(stored(), contents(context));
}

TEST_F(SaveStateTest, anotherFileIsKeptAsideWhenThePersonKeepsTheirRecords)
{
    putSample();
    open()->mainContext().insert(std::make_shared<Month>(2020, 2));
    const QByteArray another = bytes(), damaged = another.left(5000), none;
    // Whether it is written into the file, what lies there then, and the months that the store has in the end.
    const std::tuple<bool, QByteArray, int> rows[]{
        {false, none, 3}, {false, another, 3}, {true, another, 4}, {true, damaged, 1}};
    for (const auto& [isOverwritten, there, months] : rows) {
        SCOPED_TRACE(testing::Message() << isOverwritten << ", " << there.size());
        putSample();
        auto container = open();
        ModelContext& context = container->mainContext();
        const auto march = context.fetchMonths(2026, 3).first();
        const auto note = context.fetchNotes({2026, 3, 31}, {2026, 3, 31}).first();
        const auto daysOff = context.records<DayOff>() + QList{DayOff{{2026, 4, 6}}};
        context.add(daysOff.last());
        if (!isOverwritten)
            QFile::remove(path);
        if (there != none)
            setBytes(there);
        mark(*march, 31, DayState::IN_OFFICE);
        context.append(exampleChange());
        EXPECT_FALSE(context.save());
        const SaveState state{there == none ? SaveState::File::Missing : SaveState::File::Replaced, true, {}};
        EXPECT_EQ(context.saveState().value(), state);
        EXPECT_EQ(context.fetchMonths(2026, 3), QList{march});
        if (isOverwritten) {
            EXPECT_THROW((void)context.fetchMonths(2026, 2), StoreError);
        }
        EXPECT_TRUE(there == none ? files().isEmpty() : bytes() == there);
        EXPECT_TRUE(context.keepRecords());
        EXPECT_TRUE(context.saveState().value().isFine());
        EXPECT_TRUE(there == none || bytes(u".replaced"_s) == there);
        EXPECT_EQ(files().size(), there == none ? 1 : 2);
        EXPECT_EQ(context.fetchMonths().size(), months);
        EXPECT_EQ(context.records<DayOff>(), daysOff);
        EXPECT_EQ(context.records<WorkWeek>().size(), there == damaged ? 0 : 1) << "which was not read before";
        EXPECT_EQ(context.fetchNotes({2026, 3, 1}, {2026, 3, 31}), QList{note});
        EXPECT_EQ(changes(context).size(), there == damaged ? 1 : 2);
        mark(*march, 30, DayState::IN_OFFICE);
        context.append(exampleChange());
        EXPECT_TRUE(context.save());
        EXPECT_EQ(stored(), contents(context));
        container.reset();
        QFile::remove(path + u".replaced"_s);
    }
}
