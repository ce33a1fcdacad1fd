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
        std::map<QDate, std::pair<DayMark, DayMark>> changes;
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
                group->changes.at(date).second.state == state)
                return true;
        }
        return false;
    }

    void add(qint64 number, ChangedBy by, const QList<DayMark>& marks)
    {
        if (groups.empty() || groups.back().number != number)
            groups.push_back({number, by, {}, {}});
        Group& group = groups.back();
        for (const DayMark& mark : marks) {
            if (on(mark.date) == mark)
                continue;
            group.changes.try_emplace(mark.date, on(mark.date), mark).first->second.second = mark;
            group.inForce.insert(mark.date);
            set(mark);
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
                if (before != after && on(date) == after &&
                    (number == 0 || (group.number == number && !later.contains(date))))
                    dates.insert(date);
            }
            if (!dates.empty()) {
                for (const QDate& date : dates) {
                    set(group.changes.at(date).first);
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
        std::erase_if(dates, [&](QDate date) { return on(date) != groups[index].changes.at(date).first; });
        if (dates.empty())
            return false;
        undone.pop_back();
        for (const QDate& date : dates) {
            set(groups[index].changes.at(date).second);
            groups[index].inForce.insert(date);
        }
        return true;
    }

    DayMark& on(QDate date) { return days.try_emplace(date, DayMark{date}).first->second; }

    void set(const DayMark& mark)
    {
        on(mark.date) = mark;
        kinds[mark.date] = mark.absenceKind;
    }

    /// As another file may have it: what it does not hold, the kind of an absence, stays.
    void setState(QDate date, DayState state)
    {
        on(date) = {date, state, state == DayState::OUT_OF_OFFICE ? kinds[date] : AbsenceKind::none};
    }

    std::map<QDate, DayMark> days;
    std::map<QDate, int> kinds;
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

    qint64 mark(const DayMark& mark, MarkedBy by)
    {
        const auto month = findOrCreateMonth(parts->container.mainContext(), mark.date);
        const auto index = *month->indexOf(mark.date.day());
        return by == MarkedBy::Menu ? parts->marker.markAbsence(*month, index, mark.absenceKind)
                                    : parts->marker.mark(*month, index, mark.state, by);
    }

    [[nodiscard]] DayMark markOn(QDate date)
    {
        const auto month = storedMonth(parts->container.mainContext(), date);
        return month ? *parts->marker.markOn(*month, date) : DayMark{date};
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
    // Often the same again.
    const auto anyMark = [&](QDate date) {
        const DayState state = allDayStates.at(below(3));
        return DayMark{date, state, state == DayState::OUT_OF_OFFICE ? int(below(3)) : AbsenceKind::none};
    };
    const int count = 1000 * std::max(1, qEnvironmentVariableIntValue("PELLORY_TORTURE"));
    Expectation expected;
    for (int number = 0; number < count && !HasFailure(); ++number) {
        if (number % 50 == 0)
            restart();
        UndoHistory& history = parts->history;
        const QDate date = dates[below(3)], today = clock.today();
        const std::size_t action = below(17);
        SCOPED_TRACE(testing::Message() << number << ": " << action);
        if (action < 4) {
            const DayMark marked = anyMark(date);
            const MarkedBy by = marked.absenceKind != AbsenceKind::none ? MarkedBy::Menu : MarkedBy::Click;
            if (const auto group = mark(marked, by))
                expected.add(group, ChangedBy::Hand, {marked});
        } else if (action < 6) {
            const DayState before = markOn(date).state;
            const bool isOpen = before == DayState::UNKNOWN || before == DayState::WILL_BE_IN_OFFICE;
            const auto group = mark({date, DayState::IN_OFFICE}, MarkedBy::Check);
            EXPECT_EQ(group != 0, isOpen && !expected.isTakenBack(date, DayState::IN_OFFICE, today));
            if (group != 0)
                expected.add(group, ChangedBy::Check, {{date, DayState::IN_OFFICE}});
        } else if (action == 6) {
            const QList<DayMark> marks{anyMark(dates[0]), anyMark(dates[2])};
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
            const DayState state = anyMark(date).state;
            ::mark(*month, date.day(), state);
            expected.setState(date, state);
        }
        for (const QDate& day : dates)
            EXPECT_TRUE(markOn(day) == expected.on(day)) << qPrintable(day.toString(Qt::ISODate));
        if (below(10) == 0)
            clock.beginDay(today.addDays(1));
        clock.advance(std::chrono::seconds(below(4)));
    }
}
