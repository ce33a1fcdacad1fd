// SPDX-License-Identifier: GPL-3.0-or-later
#include "StoreTest.h"

#include <QCoreApplication>

#include <thread>

#include <sys/prctl.h>
#include <sys/wait.h>

class KilledTest : public StoreTest {
protected:
    static constexpr int monthCount = 12;

    /// Continues the sequence of marks without end, each in all months at once. Acknowledges each when it must be on
    /// disk: after the save of a click, or after the turn of the event loop.
    void markWithoutEnd(int number, bool isClick, int acknowledgements) const
    {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        const auto container = open();
        auto months = container->mainContext().fetchMonths();
        while (months.size() < monthCount) {
            months.append(std::make_shared<Month>(2026, 1));
            container->mainContext().insert(months.last());
        }
        for (bool isSaved = true; isSaved; ++number) {
            for (const auto& month : months)
                makeSequencedMark(*month, number);
            if (isClick)
                isSaved = container->mainContext().save();
            else
                QCoreApplication::processEvents();
            isSaved = isSaved && write(acknowledgements, ".", 1) == 1;
        }
    }

    /// Lets a program continue after so many marks and kills it at a random moment. How many it acknowledged.
    int marksBeforeKill(int marks, bool isClick)
    {
        int ends[2]{};
        EXPECT_EQ(pipe(ends), 0);
        const pid_t child = fork();
        if (child == 0) {
            markWithoutEnd(marks, isClick, ends[1]);
            _exit(EXIT_FAILURE);
        }
        close(ends[1]);
        int acknowledged = 0;
        auto readUpTo = [&, byte = '\0'](auto wanted) mutable {
            while (static_cast<decltype(wanted)>(acknowledged) < wanted && read(ends[0], &byte, 1) == 1)
                ++acknowledged;
        };
        readUpTo(numbers() % 3);
        std::this_thread::sleep_for(std::chrono::microseconds(numbers() % 20'000)); // about two marks
        int status = 0;
        EXPECT_TRUE(child > 0 && kill(child, SIGKILL) == 0 && waitpid(child, &status, 0) == child && status == SIGKILL);
        readUpTo(UINT_MAX);
        close(ends[0]);
        return acknowledged;
    }

    std::mt19937 numbers = randomNumbers();
};

TEST_F(KilledTest, everyAcknowledgedMarkIsFound)
{
    int acknowledged = 0;
    int killedInASave = 0;
    int marks = 0;
    std::unique_ptr<Month> expected;
    for (int round = 0; round < 300 * torture; ++round) {
        SCOPED_TRACE(testing::Message() << "round " << round << " from mark " << marks);
        if (round % 30 == 0) {
            QFile::remove(path);
            expected = std::make_unique<Month>(2026, 1);
            marks = 0;
        }
        const int added = marksBeforeKill(marks, round % 2 == 0);
        acknowledged += added;
        killedInASave += QFile::exists(path + u"-journal"_s) ? 1 : 0;
        for (int i = 0; i < added; ++i)
            makeSequencedMark(*expected, marks++);
        const auto container = open();
        const auto found = container->mainContext().fetchMonths();
        // The next mark may be stored and not acknowledged.
        if (!found.isEmpty() && (marks == 0 || found.first()->days.value() != expected->days.value()))
            makeSequencedMark(*expected, marks++);
        ASSERT_EQ(found.size(), marks == 0 ? 0 : monthCount);
        for (const auto& month : found)
            ASSERT_EQ(month->days.value(), expected->days.value());
    }
    std::cout << killedInASave << " killed in a save; " << acknowledged << " marks" << std::endl;
    EXPECT_TRUE(killedInASave > 10 * torture && acknowledged > 100 * torture);
}
