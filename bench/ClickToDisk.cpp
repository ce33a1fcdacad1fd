// SPDX-License-Identifier: GPL-3.0-or-later
#include "DayEditor.h"
#include "DayMarker.h"
#include "JsonLists.h"
#include "SampleStore.h"
#include "SystemClock.h"

#include <QCoreApplication>

#include <sqlite3.h>

#include <chrono>
#include <cstdio>

using namespace Qt::StringLiterals;

// ClickToDisk <folder> <rounds>
//
// Times a click on a day until it is on disk. Prints one line per round: the microseconds of a click in a store of
// three months, of rows of the same sizes written by SQLite alone, and of a click in a store of 1,200 months.

namespace {

constexpr qsizetype clickedCell = 10;

template <class Action> double microseconds(Action action)
{
    const auto start = std::chrono::steady_clock::now();
    action();
    return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start).count();
}

std::shared_ptr<Month> thisMonth(ModelContainer& store)
{
    const QDate today = QDate::currentDate();
    return store.mainContext().fetchMonths(today.year(), today.month()).at(0);
}

double click(ModelContainer& store, const Clock& clock)
{
    Month& month = *thisMonth(store);
    const auto before = month.days.value();
    DayMarker marker(store.mainContext(), clock);
    DayEditor editor(marker);
    const double taken = microseconds([&] { editor.cycleDayState(month, clickedCell); });
    QCoreApplication::processEvents();
    if (month.days.value() == before || month.days.value() != thisMonth(*openStore(store.configuration().path))->days)
        qFatal("A click is not in the store");
    return taken;
}

void check(bool success, sqlite3* database)
{
    if (!success)
        qFatal("SQLite: %s", sqlite3_errmsg(database));
}

sqlite3* bareDatabase(const QString& path)
{
    sqlite3* database = nullptr;
    check(sqlite3_open(path.toUtf8().constData(), &database) == SQLITE_OK, database);
    const char* sql = "PRAGMA journal_mode = DELETE; PRAGMA synchronous = EXTRA;"
                      "CREATE TABLE month (pk INTEGER PRIMARY KEY, days TEXT NOT NULL) STRICT;"
                      "INSERT INTO month VALUES (1, hex(zeroblob(900))), (2, ''), (3, hex(zeroblob(900)));"
                      "CREATE TABLE day_change (pk INTEGER PRIMARY KEY, row BLOB NOT NULL) STRICT;";
    check(sqlite3_exec(database, sql, nullptr, nullptr, nullptr) == SQLITE_OK, database);
    return database;
}

// A click writes the month and the change of the day.
double write(sqlite3* database, sqlite3_stmt* update, QList<Day> days, int round)
{
    // Each text differs from the previous one, as after a click.
    days[clickedCell].state = allDayStates.at(static_cast<std::size_t>(round) % allDayStates.size());
    const std::string text = encodedDays(days);
    const auto run = [&](const char* sql) {
        check(sqlite3_exec(database, sql, nullptr, nullptr, nullptr) == SQLITE_OK, database);
    };
    return microseconds([&] {
        run("BEGIN IMMEDIATE");
        sqlite3_bind_text(update, 1, text.data(), static_cast<int>(text.size()), SQLITE_STATIC);
        check(sqlite3_step(update) == SQLITE_DONE && sqlite3_reset(update) == SQLITE_OK, database);
        run("INSERT INTO day_change (row) VALUES (zeroblob(50))");
        run("COMMIT");
    });
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QString folder = QCoreApplication::arguments().at(1);
    const int rounds = QCoreApplication::arguments().at(2).toInt();
    fillStore(folder + "/three"_L1, 3);
    fillStore(folder + "/many"_L1, 1200);
    const auto three = openStore(folder + "/three"_L1);
    const auto many = openStore(folder + "/many"_L1);
    const SystemClock clock;
    sqlite3* bare = bareDatabase(folder + "/bare"_L1);
    sqlite3_stmt* update = nullptr;
    check(sqlite3_prepare_v2(bare, "UPDATE month SET days = ? WHERE pk = 2", -1, &update, nullptr) == SQLITE_OK, bare);

    for (int round = 0; round < rounds; ++round) {
        double taken[3]{};
        // The first write may have to wait for what earlier ones left to the disk, so the order rotates.
        for (int i = 0; i < 3; ++i) {
            const int turn = (round + i) % 3;
            if (turn == 1)
                taken[turn] = write(bare, update, thisMonth(*three)->days, round);
            else
                taken[turn] = click(turn == 0 ? *three : *many, clock);
        }
        std::printf("%.1f %.1f %.1f\n", taken[0], taken[1], taken[2]);
    }
    sqlite3_finalize(update);
    sqlite3_close(bare);
}
