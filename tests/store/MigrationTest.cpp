// SPDX-License-Identifier: GPL-3.0-or-later
#include "FailingDisk.h"
#include "StoreTest.h"

#include <SQLiteCpp/Column.h>

using testing::HasSubstr;

namespace {

/// With a made-up version that adds two fields of months.
Schema laterSchema()
{
    Schema schema = pellorySchema();
    auto& month = schema.tables.front().columns;
    month.insert(month.begin() + 2, {"colour", ColumnType::Integer});
    month.push_back({"mood", ColumnType::Text});
    schema.migrations.push_back({{}, {}, {{"month", "colour", 7}, {"month", "mood", "calm"}}});
    return schema;
}

} // namespace

class MigrationTest : public StoreTest {
protected:
    MigrationTest()
    {
        putReleased();
        connection().exec("CREATE TABLE unknown (x); INSERT INTO unknown VALUES ('kept')");
        sound = bytes();
    }

    [[nodiscard]] std::string query(const std::string& sql) const
    {
        return connection().execAndGet("SELECT group_concat(value) FROM (SELECT " + sql + ")").getString();
    }

    /// Whatever there was before the migration.
    [[nodiscard]] std::string oldFields() const
    {
        return query("pk || year || month || name || days_in_month || days AS value FROM month") +
               query("pk || id || wanted_days_per_week || description AS value FROM goal") +
               query("days_per_week_goals || in_office_ssids || first_time AS value FROM app_settings") +
               query("x AS value FROM unknown");
    }

    /// Every value that a store of a version holds.
    [[nodiscard]] std::string rows(const Schema& ofVersion) const
    {
        std::string rows;
        for (const TableLayout& table : ofVersion.tables) {
            std::string sql = "pk";
            for (const Column& column : table.columns)
                sql += " || ' ' || " + column.name;
            rows += query(sql + " AS value FROM " + table.name);
        }
        return rows;
    }

    const Schema schema = laterSchema();
    const QString copy = u".before-5"_s;
    QByteArray sound;
};

TEST_F(MigrationTest, addsWhatIsNewAndKeepsTheRestAndACopy)
{
    setBytes("of another time", copy);
    const std::string before = oldFields();
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(refusal(schema), "");
        EXPECT_EQ(oldFields(), before);
        EXPECT_EQ(query("colour || mood AS value FROM month"), "7calm,7calm,7calm");
        EXPECT_EQ(files(),
                  QStringList({u"Pellory.store"_s, u"Pellory.store.before-5"_s, u"Pellory.store.before-5-2"_s}));
    }
    EXPECT_THAT(refusal(), HasSubstr("newer version"));
    EXPECT_EQ(bytes(copy), "of another time");
    EXPECT_EQ(int(QFile::permissions(path + copy + u"-2"_s) & 0x77), 0); // nothing for group and others
    setBytes(bytes(copy + u"-2"_s));
    EXPECT_EQ(refusal(schema.atVersion(1)), "");
    EXPECT_EQ(oldFields(), before);
    EXPECT_EQ(refusal(), "");
    connection().exec("INSERT INTO day_change (network) VALUES ('damaged')");
    EXPECT_EQ(refusal(schema), "");
    EXPECT_EQ(query("pk AS value FROM day_change"), "");
}

TEST_F(MigrationTest, keepsEveryValueOfReleasedStoresAndAddsNoRecords)
{
    for (const int version : {1, 2, 3}) {
        putReleased(version);
        const std::string before = rows(pellorySchema().atVersion(version));
        const auto container = open();
        EXPECT_EQ(rows(pellorySchema().atVersion(version)), before);
        if (version > 2)
            continue;
        EXPECT_THAT(changes(container->mainContext()), testing::Each(testing::Truly([](const Row& row) {
                        return row.at(8) == Value(0) && row.at(9) == Value(0);
                    })));
        EXPECT_THAT(smallRecords(container->mainContext()), testing::IsEmpty());
    }
}

TEST_F(MigrationTest, thatFailsLeavesTheStoreAsItWas)
{
    Schema badSchema = schema;
    badSchema.indexes.back().sql = "create index day_note_by_date on day_note (date)"; // SQLite stores it in capitals
    const std::tuple<const char*, const Schema&, const char*, int> rows[]{
        {"UPDATE month SET name = 'x' WHERE pk = 1", schema, "damaged: record 1", 0},
        {"ALTER TABLE month ADD COLUMN mood TEXT", schema, "\"month\" in the data store is not defined", 0},
        {"CREATE TABLE day_note (x)", schema, "left as it was.*already exists", 1},
        {"DELETE FROM goal WHERE pk = 1", schema, "is missing", 1},
        {"DELETE FROM unknown", badSchema, "left as it was.*\"day_note_by_date\" .* not defined", 1},
    };
    for (const auto& [sql, wanted, reason, copies] : rows) {
        SCOPED_TRACE(sql);
        QFile::remove(path + copy);
        setBytes(sound);
        connection().exec(sql);
        const QByteArray before = bytes();
        for (int attempt = 0; attempt < 2; ++attempt) {
            EXPECT_THAT(refusal(wanted), testing::ContainsRegex(reason));
            EXPECT_EQ(bytes(), before);
            EXPECT_EQ(files().size(), 1 + copies);
        }
    }
}

TEST_F(MigrationTest, leavesTheOldOrTheNewStoreWhateverFailsAndWheneverItIsKilled)
{
    const FailingDisk disk;
    const std::string before = oldFields();
    int completed = 0;
    const auto calls = FailingDisk::strikeEverywhere(FailingDisk::failuresAndKill, [&] {
        QFile::remove(path + copy);
        setBytes(sound);
        std::string reason;
        FailingDisk::run([&] { reason = refusal(schema); });
        EXPECT_TRUE(reason.empty() || FailingDisk::hasStruck()) << reason;
        const std::string now = refusal(schema.atVersion(1));
        EXPECT_TRUE(now.empty() || now.find("newer version") != std::string::npos) << now;
        completed += now.empty() ? 0 : 1;
        EXPECT_EQ(oldFields(), before);
        EXPECT_EQ(refusal(schema), "");
        EXPECT_EQ(oldFields(), before);
        EXPECT_EQ(files(), QStringList({u"Pellory.store"_s, u"Pellory.store.before-5"_s}));
    });
    EXPECT_THAT(calls, testing::ElementsAre(testing::Ge(5), testing::Ge(20), testing::Ge(4), 0, testing::Ge(1),
                                            testing::Ge(1)));
    EXPECT_GE(completed, 3);
}
