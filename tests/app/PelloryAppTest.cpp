// SPDX-License-Identifier: GPL-3.0-or-later
#include "PelloryApp.h"
#include "Alerts.h"
#include "AppSettings.h"
#include "ModelContainer.h"
#include "ModelContext.h"
#include "Testing.h"

#include <QLoggingCategory>
#include <QTemporaryDir>

using testing::_;
using testing::Return;

namespace {

class MockAlerts : public Alerts {
public:
    MOCK_METHOD(void, showCritical, (const QString&, const QString&), (override));
    MOCK_METHOD(bool, confirmWarning, (const QString&, const QString&, const QString&, const QString&), (override));
};

QStringList logged;

} // namespace

class PelloryAppTest : OrdinaryUser, public testing::Test {
protected:
    /// Returns why there was no start.
    QString start()
    {
        try {
            const PelloryApp app(data, alerts);
            return {};
        } catch (const FatalStop& stop) {
            return QString::fromUtf8(stop.what());
        }
    }
    auto& expectQuestion()
    {
        return EXPECT_CALL(alerts, confirmWarning(u"Delete File?"_s,
                                                  u"Could not load the app's data store. It's probably corrupted. Do "
                                                  "you want reset all the app's data? You will lose all data. This "
                                                  "action cannot be undone."_s,
                                                  u"Delete"_s, u"Cancel"_s));
    }
    void expectAlert(const QString& message)
    {
        EXPECT_CALL(alerts, showCritical(message, _)).WillOnce(testing::SaveArg<1>(&alert));
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
    const QByteArray damaged = QByteArray("This is no database. ").repeated(100);
    testing::StrictMock<MockAlerts> alerts;
    QString alert;
};

TEST_F(PelloryAppTest, makesFolderStoreAndSettingsAndFindsThemAgain)
{
    QLoggingCategory::setFilterRules(u"pellory.app.debug=true"_s);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) { logged.append(text); });
    {
        PelloryApp app(data, alerts);
        EXPECT_TRUE(app.settings().firstTime);
        EXPECT_TRUE(app.container().mainContext().fetchMonths().isEmpty());
        app.settings().checkEveryInMinutes = 45;
    }
    EXPECT_EQ(QFileInfo(folder).permissions(), QFile::Permissions(0x7700));
    EXPECT_EQ(PelloryApp(data, alerts).container().mainContext().fetchSettings().size(), 1);
    const QString location = u"fileURL swift data location: "_s + store;
    EXPECT_EQ(logged, QStringList({location, u"Checking if in office every 1800 seconds"_s, location,
                                   u"Checking if in office every 2700 seconds"_s}));
    qInstallMessageHandler(nullptr);
    QLoggingCategory::setFilterRules({});
}

TEST_F(PelloryAppTest, saysWhatItCannotDoAndLeavesTheStoreAlone)
{
    ASSERT_TRUE(QDir().mkpath(data) && QFile(folder).open(QFile::WriteOnly));
    expectAlert(u"Cannot start Pellory Tracker"_s);
    const QString reason = QString::fromStdString(std::make_error_code(std::errc::file_exists).message());
    EXPECT_EQ(start(), u"Could not create directory at "_s + folder + u" for Pellory SwiftData app store. "_s + reason);
    EXPECT_EQ(alert, u"Could not create app directory: "_s + reason);

    ASSERT_TRUE(QFile::remove(folder) && QDir().mkpath(folder));
    write(damaged);
    QFile::setPermissions(store, QFile::WriteOwner);
    expectAlert(u"Fatal Error"_s);
    const QString unreadable = u"Cannot read app swift data store. You do not have read permissions on "_s + store +
                               u". Fix the permissions "_s;
    EXPECT_EQ(start(), unreadable + u"and re-start app."_s);
    EXPECT_EQ(alert, unreadable + u"and restart the app."_s);

    QFile::setPermissions(store, QFile::ReadOwner);
    expectQuestion().WillOnce(Return(false));
    expectAlert(u"Fatal Error"_s);
    const QString damage = u"The file is not a data store of Pellory (file is not a database)."_s;
    EXPECT_EQ(start(), u"Could not load data store, giving up.: "_s + store + u": "_s + damage);
    EXPECT_EQ(alert, u"Could not load data store at "_s + store + u". "_s + damage);

    QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner);
    expectQuestion().WillOnce(Return(true));
    expectAlert(u"Fatal Error"_s);
    EXPECT_EQ(start(), alert);
    EXPECT_TRUE(alert.startsWith(u"Could not remove app data store: "_s)) << alert.toStdString();
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EXPECT_EQ(bytes(), damaged);
    EXPECT_EQ(QDir(folder).entryList(QDir::Files), QStringList(u"Pellory.store"_s));
}

TEST_F(PelloryAppTest, opensADamagedStoreAgainAfterTheQuestionWhateverTheAnswer)
{
    PelloryApp(data, alerts).settings().firstTime = false;
    const QByteArray sound = bytes();
    for (const bool isDelete : {false, true}) {
        write(damaged);
        expectQuestion().WillOnce([&] {
            if (!isDelete)
                write(sound); // the person has put it right meanwhile
            return isDelete;
        });
        EXPECT_EQ(PelloryApp(data, alerts).settings().firstTime, isDelete);
    }
}
