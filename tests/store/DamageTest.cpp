// SPDX-License-Identifier: GPL-3.0-or-later
#include "BackupContents.h"
#include "StoreTest.h"

#include <iostream>
#include <random>

/// A store with every kind of page: inner ones, leaves, an index, long values, and free ones.
class DamageTest : public StoreTest {
protected:
    DamageTest()
    {
        putSample();
        const auto container = open();
        for (const int month : {4, 5})
            container->mainContext().insert(std::make_shared<Month>(2026, month));
        for (const int length : {14000, 9000}) { // pages that are no longer needed stay free
            container->mainContext().fetchGoals().first()->desc = QString(length, u'x');
            EXPECT_TRUE(container->mainContext().save());
        }
        m_records = records(container->mainContext());
        m_changes = changes(container->mainContext());
        m_states = readStore(path);
        sound = bytes();
        EXPECT_GT(sound.size() / pageSize, 10);
    }

    /// Whether a damaged store is refused, and left as it is. If it is not refused, it has all records; a change of a
    /// day may be missing.
    [[nodiscard]] bool isRefused(const QByteArray& damaged, bool asBackup = true) const
    {
        setBytes(damaged);
        bool isRefused = false;
        try {
            const auto container = open();
            EXPECT_EQ(records(container->mainContext()), m_records);
            EXPECT_TRUE(std::ranges::includes(m_changes, changes(container->mainContext())));
        } catch (const StoreError& error) {
            isRefused = true;
            EXPECT_FALSE(error.description().isEmpty());
        }
        EXPECT_TRUE(!asBackup || !isSoundBackup() || !isRefused) << "a damaged backup would be offered";
        EXPECT_TRUE(bytes() == damaged);
        // With the number of version 1, which has some of the tables, it is a store to convert, which then fails.
        QFile::remove(path + u".before-4"_s);
        EXPECT_EQ(files(), QStringList(u"Pellory.store"_s));
        return isRefused;
    }

    [[nodiscard]] bool isSoundBackup() const
    {
        try {
            EXPECT_EQ(readBackup(path), m_states);
            return true;
        } catch (const StoreError&) {
            return false;
        }
    }

    [[nodiscard]] QByteArray withFlippedBit(qsizetype at, qsizetype bit) const
    {
        return QByteArray(sound).replace(at, 1, QByteArray(1, static_cast<char>(sound[at] ^ 1 << bit)));
    }

    static constexpr qsizetype pageSize = 4096;
    QByteArray sound;

private:
    std::vector<Row> m_records;
    std::vector<Row> m_changes;
    DayStates m_states;
};

TEST_F(DamageTest, isRecognisedInTheHeader)
{
    for (qsizetype bit = 0; bit < 800; ++bit) {
        SCOPED_TRACE(bit);
        if (isRefused(withFlippedBit(bit / 8, bit % 8), bit % 4 == 0))
            continue;
        // What the database ignores must not prevent the next mark either.
        const auto container = open();
        mark(*container->mainContext().fetchMonths(2026, 5).first(), 5, DayState::VACATION_DAY);
        EXPECT_TRUE(container->mainContext().save());
        EXPECT_EQ(stored(), contents(container->mainContext()));
    }
    for (const qsizetype size : {qsizetype(0), sound.size()}) // as a power cut may leave it
        EXPECT_TRUE(isRefused(QByteArray(size, '\0')));
}

// Different in every run. A run is repeated by its seed in the environment.
TEST_F(DamageTest, isRecognisedAtRandom)
{
    const unsigned given = qEnvironmentVariable("PELLORY_SEED").toUInt();
    const unsigned seed = given != 0 ? given : std::random_device()();
    std::cout << "PELLORY_SEED=" << seed << std::endl;
    std::mt19937 random(seed);
    const auto below = [&](qsizetype end) { return std::uniform_int_distribution<qsizetype>(0, end - 1)(random); };
    // Half of the time near the start of a page, where the database keeps its own data.
    const auto place = [&] {
        return below(2) == 0 ? below(sound.size()) : below(sound.size() / pageSize) * pageSize + below(128);
    };

    const int count = 2'000 * std::max(1, qEnvironmentVariableIntValue("PELLORY_TORTURE"));
    int refused = 0;
    for (int number = 0; number < count && !HasFailure(); ++number) {
        SCOPED_TRACE(testing::Message() << "mutation " << number);
        QByteArray damaged = sound;
        for (auto times = 1 + below(3); times > 0; --times) {
            const qsizetype at = place();
            const qsizetype size = std::min(1 + below(below(2) == 0 ? 4 : 2 * pageSize), sound.size() - at);
            const QByteArray patches[]{QByteArray(size, '\0'),
                                       sound.sliced(std::min(place(), sound.size() - size), size),
                                       withFlippedBit(at, below(8)).sliced(at, 1)};
            const QByteArray& patch = patches[below(std::ssize(patches))];
            damaged.replace(at, patch.size(), patch);
        }
        if (below(20) == 0)
            damaged.resize(below(2 * sound.size()));
        refused += isRefused(damaged, number % 8 == 0) ? 1 : 0;
    }
    EXPECT_GT(refused, count / 2) << "of " << count;
}
