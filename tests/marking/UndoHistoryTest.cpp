// SPDX-License-Identifier: GPL-3.0-or-later
#include "UndoHistory.h"
#include "DayMarker.h"
#include "FixedClock.h"
#include "Marking.h"
#include "ModelContainer.h"
#include "ModelContext.h"
#include "Month.h"
#include "StoredMonths.h"
#include "Testing.h"

#include <QTemporaryDir>

#include <iostream>
#include <map>
#include <random>
#include <set>

namespace {

/// What a person may expect of undo and redo, kept as a plain list of groups.
struct Expectation {
    struct Group {
        qint64 number;
        ChangedBy by;
        std::map<QDate, std::pair<DayState, DayState>> changes;
        std::set<QDate> inForce;
        QDate undone = {};
    };
    using Dates = std::set<QDate>;

    [[nodiscard]] bool isTakenBack(QDate date, DayState state, QDate today) const
    {
        for (auto group = groups.rbegin(); group != groups.rend(); ++group) {
            if (group->inForce.contains(date))
                return false;
            if (group->by == ChangedBy::Check && group->undone == today && group->changes.contains(date) &&
                group->changes.at(date).second == state)
                return true;
        }
        return false;
    }

    void add(qint64 number, ChangedBy by, const QList<DayMark>& marks)
    {
        if (groups.empty() || groups.back().number != number)
            groups.push_back({number, by, {}, {}});
        Group& group = groups.back();
        for (const auto& [date, state] : marks) {
            if (states[date] == state)
                continue;
            group.changes.try_emplace(date, states[date], state).first->second.second = state;
            group.inForce.insert(date);
            states[date] = state;
        }
        undone.clear();
    }

    /// The last group if `number` is 0; what lies above it must not change anything then.
    bool undo(qint64 number, QDate today)
    {
        Dates later;
        for (std::size_t i = groups.size(); i-- > 0;) {
            Group& group = groups[i];
            Dates dates;
            for (const QDate& date : group.inForce) {
                const auto& [before, after] = group.changes.at(date);
                if (before != after && states[date] == after &&
                    (number == 0 || (group.number == number && !later.contains(date))))
                    dates.insert(date);
            }
            if (!dates.empty()) {
                for (const QDate& date : dates) {
                    states[date] = group.changes.at(date).first;
                    group.inForce.erase(date);
                }
                group.undone = today;
                undone.emplace_back(i, dates);
                return true;
            }
            later.insert(group.inForce.begin(), group.inForce.end());
        }
        return false;
    }

    bool redo()
    {
        if (undone.empty())
            return false;
        auto [index, dates] = undone.back();
        std::erase_if(dates, [&](QDate date) { return states[date] != groups[index].changes.at(date).first; });
        if (dates.empty())
            return false;
        undone.pop_back();
        for (const QDate& date : dates) {
            states[date] = groups[index].changes.at(date).second;
            groups[index].inForce.insert(date);
        }
        return true;
    }

    std::map<QDate, DayState> states;
    std::vector<Group> groups;
    std::vector<std::pair<std::size_t, Dates>> undone;
};

} // namespace

class UndoHistoryTest : public testing::Test {
protected:
    void restart()
    {
        parts.reset();
        parts = std::make_unique<Parts>(folder.filePath(u"Pellory.store"_s), clock);
    }

    qint64 mark(QDate date, DayState state, MarkedBy by)
    {
        const auto month = findOrCreateMonth(parts->container.mainContext(), date);
        return parts->marker.mark(*month, *month->indexOf(date.day()), state, by);
    }

    [[nodiscard]] DayState stateOn(QDate date)
    {
        const auto month = storedMonth(parts->container.mainContext(), date);
        return month ? DayMarker::stateOf(*month, *month->indexOf(date.day())) : DayState::UNKNOWN;
    }

    struct Parts {
        Parts(const QString& path, const Clock& clock)
            : container({.name = {}, .path = path})
            , marker(container.mainContext(), clock)
            , history(marker)
        {
        }
        ModelContainer container;
        DayMarker marker;
        UndoHistory history;
    };
    const QTemporaryDir folder{inMemory};
    FixedClock clock;
    std::unique_ptr<Parts> parts;
};

// Different in every run. A run is repeated by its seed in the environment.
TEST_F(UndoHistoryTest, takesBackAndSetsAgainWhateverTheOrder)
{
    const unsigned given = qEnvironmentVariable("PELLORY_SEED").toUInt();
    const unsigned seed = given != 0 ? given : std::random_device()();
    std::cout << "PELLORY_SEED=" << seed << std::endl;
    std::mt19937 random(seed);
    const auto below = [&](std::size_t end) { return std::uniform_int_distribution<std::size_t>(0, end - 1)(random); };
    const QDate dates[]{{2026, 10, 30}, {2026, 11, 20}, {2026, 11, 23}};
    const auto anyState = [&] { return allDayStates.at(below(3)); }; // often the same again
    const int count = 1000 * std::max(1, qEnvironmentVariableIntValue("PELLORY_TORTURE"));
    Expectation expected;
    for (int number = 0; number < count && !HasFailure(); ++number) {
        if (number % 50 == 0)
            restart();
        UndoHistory& history = parts->history;
        const QDate date = dates[below(3)], today = clock.today();
        const std::size_t action = below(17);
        SCOPED_TRACE(testing::Message() << number << ": " << action);
        if (action < 3) {
            const DayState state = anyState();
            if (const auto group = mark(date, state, MarkedBy::Click))
                expected.add(group, ChangedBy::Hand, {{date, state}});
        } else if (action < 6) {
            const DayState before = stateOn(date);
            const bool isOpen = before == DayState::UNKNOWN || before == DayState::WILL_BE_IN_OFFICE;
            const auto group = mark(date, DayState::IN_OFFICE, MarkedBy::Check);
            EXPECT_EQ(group != 0, isOpen && !expected.isTakenBack(date, DayState::IN_OFFICE, today));
            if (group != 0)
                expected.add(group, ChangedBy::Check, {{date, DayState::IN_OFFICE}});
        } else if (action == 6) {
            const QList<DayMark> marks{{dates[0], anyState()}, {dates[2], anyState()}};
            if (const auto group = parts->marker.mark(marks, ChangedBy::Hand))
                expected.add(group, ChangedBy::Hand, marks);
        } else if (action < 10 && !expected.groups.empty()) {
            const auto recent = std::min<std::size_t>(expected.groups.size(), 8);
            const qint64 group = expected.groups[expected.groups.size() - 1 - below(recent)].number;
            EXPECT_EQ(history.undo(group), expected.undo(group, today));
        } else if (action < 13) {
            EXPECT_EQ(history.undo(), expected.undo(0, today));
        } else {
            EXPECT_EQ(history.redo(), expected.redo());
        }
        if (below(30) == 0) { // as when another file was put in the place of the store
            const auto month = findOrCreateMonth(parts->container.mainContext(), date);
            ::mark(*month, date.day(), expected.states[date] = anyState());
        }
        for (const QDate& day : dates)
            EXPECT_EQ(stateOn(day), expected.states[day]) << qPrintable(day.toString(Qt::ISODate));
        if (below(10) == 0)
            clock.beginDay(today.addDays(1));
        clock.advance(std::chrono::seconds(below(4)));
    }
}
