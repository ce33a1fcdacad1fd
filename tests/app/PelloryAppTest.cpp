// SPDX-License-Identifier: GPL-3.0-or-later
#include "PelloryApp.h"
#include "Alerts.h"
#include "AppSettings.h"
#include "LostStore.h"
#include "ModelContainer.h"
#include "ModelContext.h"
#include "Testing.h"

#include <QTemporaryDir>

#include <SQLiteCpp/Database.h>

#include <thread>

using testing::Return;
using namespace std::chrono_literals;

namespace {

class MockAlerts : public Alerts {
public:
    MOCK_METHOD(std::shared_ptr<void>, showNotice, (const QString&, const QString&), (override));
    MOCK_METHOD(void, showCritical, (const QString&, const QString&), (override));
    MOCK_METHOD(bool, confirmWarning, (const QString&, const QString&, const QString&, const QString&), (override));
};

} // namespace

class PelloryAppTest : OrdinaryUser, public testing::Test {
protected:
    /// Returns why there was no start.
    QString start(std::chrono::milliseconds lockTimeout = 50ms)
    {
        try {
            const PelloryApp app(data, alerts, lockTimeout);
            return {};
        } catch (const FatalStop& stop) {
            return QString::fromUtf8(stop.what());
        }
    }
    auto& expectQuestion(const QString& reason)
    {
        return EXPECT_CALL(alerts, confirmWarning(u"Delete File?"_s,
                                                  u"Could not load the app's data store. It's probably corrupted. Do "
                                                  "you want reset all the app's data? You will lose all data. This "
                                                  "action cannot be undone.\n\n"_s +
                                                      reason,
                                                  u"Delete"_s, u"Cancel"_s));
    }
    void expectStop(const QString& reason, const QString& message, const QString& informativeText)
    {
        EXPECT_CALL(alerts, showCritical(message, informativeText));
        EXPECT_EQ(start(), reason);
    }
    [[nodiscard]] QByteArray bytes() const
    {
        QFile file(store);
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
    }
    void write(const QByteArray& bytes) const
    {
        QFile file(store);
        ASSERT_TRUE(file.open(QFile::WriteOnly) && file.write(bytes) == bytes.size());
    }

    const QTemporaryDir home;
    const QString data = home.filePath(u"nothing in %1 %2 is replaced"_s), folder = data + u"/Pellory"_s;
    const QString store = folder + u"/Pellory.store"_s;
    const QString damage = u"The file is not a data store of Pellory (file is not a database)."_s;
    const QByteArray damaged = QByteArray("This is no database. ").repeated(100);
    testing::StrictMock<MockAlerts> alerts;
};

TEST_F(PelloryAppTest, saysWhatItCannotDoAndLeavesTheStoreAlone)
{
    const QString fatal = u"Fatal Error"_s;
    ASSERT_TRUE(QDir().mkpath(data) && QFile(folder).open(QFile::WriteOnly));
    const QString reason = QString::fromStdString(std::make_error_code(std::errc::file_exists).message());
    expectStop(u"Could not create directory at "_s + folder + u" for Pellory SwiftData app store. "_s + reason,
               u"Cannot start Pellory Tracker"_s, u"Could not create app directory: "_s + reason);

    ASSERT_TRUE(QFile::remove(folder) && QDir().mkpath(folder));
    write(damaged);
    QFile::setPermissions(store, QFile::WriteOwner);
    const QString unreadable = u"Cannot read app swift data store. You do not have read permissions on "_s + store +
                               u". Fix the permissions "_s;
    expectStop(unreadable + u"and re-start app."_s, fatal, unreadable + u"and restart the app."_s);

    QFile::setPermissions(store, QFile::ReadOwner);
    expectQuestion(damage).WillOnce(Return(false)).WillOnce(Return(true));
    expectStop(u"Could not load data store, giving up.: "_s + store + u": "_s + damage, fatal,
               u"Could not load data store at "_s + store + u". "_s + damage);

    QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner);
    const QString kept = u"Could not remove app data store: "_s + store + u": Permission denied"_s;
    expectStop(kept, fatal, kept);
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EXPECT_EQ(bytes(), damaged);
    EXPECT_EQ(QDir(folder).entryList(QDir::Files), (QStringList{u"Pellory.store"_s, u"Pellory.store.lock"_s}));
}

TEST_F(PelloryAppTest, waitsForALockAndTakesNoObstacleForDamage)
{
    start();
    const QByteArray sound = bytes();
    const auto isAdvice = testing::Truly([](const QString& text) {
        return text.endsWith(u"\n\nThis does not mean that your data is damaged. Choose Cancel to keep it."_s);
    });
    EXPECT_CALL(alerts, confirmWarning(testing::_, isAdvice, testing::_, testing::_)).Times(2);
    EXPECT_CALL(alerts, showCritical).Times(2);
    SQLite::Database(store.toStdString(), SQLite::OPEN_READWRITE).exec("PRAGMA user_version = 99");
    EXPECT_TRUE(start().contains(u"newer version"_s));
    write(sound);

    std::optional<SQLite::Database> other(std::in_place, store.toStdString(), SQLite::OPEN_READWRITE);
    other->exec("BEGIN EXCLUSIVE");
    EXPECT_CALL(alerts, showNotice).Times(2).WillRepeatedly(Return(std::make_shared<bool>()));
    EXPECT_TRUE(start().contains(u"in use by another program"_s));

    EXPECT_CALL(alerts, showNotice).WillOnce([&] {
        other.reset();
        return std::make_shared<bool>();
    });
    EXPECT_EQ(start(), u""_s);
}

TEST_F(PelloryAppTest, startsBesideAProgramThatTakesShortLocks)
{
    start();
    const std::jthread other([this](const std::stop_token& end) {
        SQLite::Database database(store.toStdString(), SQLite::OPEN_READWRITE, 60'000);
        while (!end.stop_requested()) {
            database.exec("BEGIN EXCLUSIVE");
            std::this_thread::sleep_for(15ms);
            database.exec("COMMIT");
            std::this_thread::sleep_for(1ms);
        }
    });
    for (int i = 0; i < 50; ++i)
        EXPECT_EQ(start(600s), u""_s); // so long that not even a busy machine shows the notice
}

TEST_F(PelloryAppTest, sharesTheStoreWithNoOtherPellory)
{
    {
        const PelloryApp first(data, alerts);
        expectStop(
            u"Another Pellory uses the data in "_s + folder, u"Pellory is running already"_s,
            u"Another Pellory is using your data, perhaps in another session, and cannot be reached from here. Two "
            "programs would erase each other's marks. Use its window, or end it and start Pellory again."_s);
    }
    EXPECT_EQ(start(), u""_s);
}

TEST_F(PelloryAppTest, makesAStoreAndOpensADamagedOneAfterTheQuestionWhateverTheAnswer)
{
    {
        PelloryApp app(data, alerts);
        EXPECT_EQ(app.lostStore(), LostStore::Missing);
        EXPECT_TRUE(app.settings().firstTime);
        app.settings().firstTime = false;
        EXPECT_TRUE(app.container().mainContext().fetchMonths().isEmpty());
    }
    EXPECT_EQ(QFileInfo(folder).permissions(), QFile::Permissions(0x7700));
    const QByteArray sound = bytes();
    for (const bool isDelete : {false, true}) {
        write(damaged);
        expectQuestion(damage).WillOnce([&] {
            if (!isDelete)
                write(sound); // the person has put it right meanwhile
            return isDelete;
        });
        PelloryApp app(data, alerts);
        EXPECT_EQ(app.settings().firstTime, isDelete);
        EXPECT_EQ(app.lostStore(), isDelete ? std::optional(LostStore::Deleted) : std::nullopt);
        EXPECT_EQ(app.container().mainContext().fetchSettings().size(), 1);
    }
}
