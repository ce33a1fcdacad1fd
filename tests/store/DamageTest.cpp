// SPDX-License-Identifier: GPL-3.0-or-later
#include "StoreTest.h"

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
        m_expected = contents(container->mainContext());
        sound = bytes();
        EXPECT_GT(sound.size() / pageSize, 10);
    }

    /// Whether a damaged store is refused, and left as it is. If it is not refused, it has all data.
    [[nodiscard]] bool isRefused(const QByteArray& damaged) const
    {
        setBytes(damaged);
        bool isRefused = false;
        try {
            EXPECT_EQ(stored(), m_expected);
        } catch (const StoreError& error) {
            isRefused = true;
            EXPECT_FALSE(error.description().isEmpty());
        }
        EXPECT_TRUE(bytes() == damaged);
        EXPECT_EQ(files(), QStringList(u"Pellory.store"_s));
        return isRefused;
    }

    [[nodiscard]] QByteArray flipped(qsizetype at, qsizetype bit) const
    {
        return QByteArray(sound).replace(at, 1, QByteArray(1, static_cast<char>(sound[at] ^ 1 << bit)));
    }

    /// A place in the store: half of the time near the start of a page, where the database keeps its own data.
    [[nodiscard]] qsizetype somewhere()
    {
        const qsizetype place = below(sound.size());
        return below(2) == 0 ? place : place / pageSize * pageSize + below(128);
    }

    [[nodiscard]] qsizetype below(qsizetype end)
    {
        return std::uniform_int_distribution<qsizetype>(0, end - 1)(m_random);
    }

    void damage(QByteArray& store)
    {
        const qsizetype at = somewhere();
        const qsizetype size = std::min(1 + below(below(2) == 0 ? 4 : 2 * pageSize), sound.size() - at);
        const qsizetype from = std::min(somewhere(), sound.size() - size);
        QByteArray noise(size, '\0');
        for (char& byte : noise)
            byte = static_cast<char>(below(256));
        const QByteArray patches[]{QByteArray(size, '\0'), QByteArray(size, '\xff'), sound.sliced(from, size), noise,
                                   flipped(at, below(8)).sliced(at, 1)};
        const QByteArray& patch = patches[below(std::ssize(patches))];
        store.replace(at, patch.size(), patch);
    }

    static constexpr qsizetype pageSize = 4096;
    QByteArray sound;

private:
    QStringList m_expected;
    std::mt19937 m_random = randomNumbers();
};

TEST_F(DamageTest, isRecognisedInTheHeaderAndInWholePages)
{
    for (qsizetype bit = 0; bit < 800; ++bit) {
        SCOPED_TRACE(bit);
        if (isRefused(flipped(bit / 8, bit % 8)))
            continue;
        // What the database ignores must not prevent the next mark either.
        const auto container = open();
        mark(*container->mainContext().fetchMonths(2026, 5).first(), 5, DayState::VACATION_DAY);
        EXPECT_TRUE(container->mainContext().save());
        EXPECT_EQ(stored(), contents(container->mainContext()));
    }
    for (qsizetype start = 0; start < sound.size(); start += pageSize) {
        EXPECT_TRUE(isRefused(sound.first(start + start / pageSize)));
        static_cast<void>(isRefused(QByteArray(sound).replace(start, pageSize, QByteArray(pageSize, '\0'))));
        for (qsizetype other = 0; other < sound.size(); other += pageSize) // a write in the wrong place
            static_cast<void>(isRefused(QByteArray(sound).replace(start, pageSize, sound.sliced(other, pageSize))));
    }
    for (const auto& other : {QByteArray(5000, 'x'), QByteArray(2 * pageSize, '\0')})
        EXPECT_TRUE(isRefused(other));
}

TEST_F(DamageTest, isRecognisedAtRandom)
{
    const int count = 10'000 * torture;
    int refused = 0;
    for (int number = 0; number < count; ++number) {
        SCOPED_TRACE(testing::Message() << "mutation " << number);
        QByteArray damaged = sound;
        for (auto times = 1 + below(3); times > 0; --times)
            damage(damaged);
        if (below(20) == 0)
            damaged.resize(below(2 * sound.size()));
        refused += isRefused(damaged) ? 1 : 0;
        ASSERT_FALSE(HasFailure());
    }
    EXPECT_GT(refused, count / 2) << "of " << count;
}
