// SPDX-License-Identifier: GPL-3.0-or-later
#include "PelloryApp.h"
#include "Alerts.h"
#include "AppSettings.h"
#include "ModelContainer.h"
#include "ModelContext.h"
#include "StoreError.h"
#include "StoreFile.h"
#include "Testing.h"

#include <QDir>
#include <QLoggingCategory>
#include <QTemporaryDir>

#include <functional>

namespace {

/// Keeps what a person is told, and answers.
class RecordingAlerts : public Alerts {
public:
    void showCritical(const QString& message, const QString& informativeText) override
    {
        shown.append(message + u": "_s + informativeText);
    }
    bool confirmWarning(const QString& message, const QString& informativeText, const QString& firstButton,
                        const QString& secondButton) override
    {
        shown.append(QStringList{message, informativeText, firstButton, secondButton}.join(u'|'));
        return answer();
    }

    QStringList shown;
    std::function<bool()> answer = [] { return false; };
};

const auto question =
    u"Delete File?|Could not load the app's data store. It's probably corrupted. Do you want reset all the app's data? "
    "You will lose all data. This action cannot be undone.|Delete|Cancel"_s;

/// What the StoreError of an action says.
template <class Action> QString reasonOf(Action action)
{
    try {
        action();
        return u"nothing is wrong"_s;
    } catch (const StoreError& error) {
        return error.description();
    }
}

QStringList logged;

} // namespace

class PelloryAppTest : OrdinaryUser, public testing::Test {
protected:
    PelloryAppTest() { QDir().mkpath(data); }

    /// Why there was no start; empty when all went well. Otherwise the application is given to `use`.
    QString start(const std::function<void(PelloryApp&)>& use = [](PelloryApp&) {})
    {
        alerts.shown.clear();
        try {
            PelloryApp app(data, alerts);
            use(app);
            return {};
        } catch (const FatalStop& stop) {
            return QString::fromUtf8(stop.what());
        }
    }

    void write(const QByteArray& bytes) const
    {
        QDir().mkpath(folder);
        QFile file(store);
        ASSERT_TRUE(file.open(QFile::WriteOnly) && file.write(bytes) == bytes.size());
    }

    [[nodiscard]] QByteArray bytes() const
    {
        QFile file(store);
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
    }

    const QTemporaryDir home;
    const QString data = home.filePath(u"nothing in %1 %2 is replaced"_s);
    const QString folder = data + u"/Pellory"_s;
    const QString store = folder + u"/Pellory.store"_s;
    const QByteArray damaged = QByteArray("This is no database. ").repeated(100);
    RecordingAlerts alerts;
};

TEST_F(PelloryAppTest, theFirstStartMakesFolderStoreAndSettingsAndTheNextFindsThem)
{
    QDir().rmdir(data);
    QLoggingCategory::setFilterRules(u"pellory.app.debug=true"_s);
    const auto previous =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) { logged.append(text); });
    EXPECT_EQ(start([](PelloryApp& app) {
                  EXPECT_TRUE(app.settings().firstTime);
                  EXPECT_TRUE(app.container().mainContext().fetchMonths().isEmpty());
                  app.settings().checkEveryInMinutes = 45;
              }),
              QString());
    EXPECT_EQ(QFileInfo(folder).permissions(), QFile::Permissions(0x7700));
    EXPECT_EQ(start([](PelloryApp& app) { EXPECT_EQ(app.container().mainContext().fetchSettings().size(), 1); }),
              QString());
    qInstallMessageHandler(previous);
    QLoggingCategory::setFilterRules({});
    EXPECT_EQ(alerts.shown, QStringList());
    const QString location = u"fileURL swift data location: "_s + store;
    EXPECT_EQ(logged, QStringList({location, u"Checking if in office every 1800 seconds"_s, location,
                                   u"Checking if in office every 2700 seconds"_s}));
}

TEST_F(PelloryAppTest, withoutAFolderThereIsNoStart)
{
    ASSERT_TRUE(QFile(folder).open(QFile::WriteOnly));
    const QString reason = QString::fromStdString(std::make_error_code(std::errc::file_exists).message());
    EXPECT_EQ(start(), u"Could not create directory at "_s + folder + u" for Pellory SwiftData app store. "_s + reason);
    EXPECT_EQ(alerts.shown, QStringList(u"Cannot start Pellory Tracker: Could not create app directory: "_s + reason));
}

TEST_F(PelloryAppTest, anUnreadableStoreIsLeftAlone)
{
    write(damaged);
    QFile::setPermissions(store, QFile::WriteOwner);
    const QString reason = u"Cannot read app swift data store. You do not have read permissions on "_s + store;
    EXPECT_EQ(start(), reason + u". Fix the permissions and re-start app."_s);
    EXPECT_EQ(alerts.shown, QStringList(u"Fatal Error: "_s + reason + u". Fix the permissions and restart the app."_s));
    QFile::setPermissions(store, QFile::ReadOwner);
    EXPECT_EQ(bytes(), damaged);
}

TEST_F(PelloryAppTest, aCorruptedStoreThatIsKeptEndsTheStart)
{
    write(damaged);
    const QString reason = reasonOf([&] { const ModelContainer container({.name = {}, .path = store}); });
    EXPECT_EQ(start(), u"Could not load data store, giving up.: "_s + store + u": "_s + reason);
    EXPECT_EQ(alerts.shown,
              QStringList({question, u"Fatal Error: Could not load data store at "_s + store + u". "_s + reason}));
    EXPECT_EQ(bytes(), damaged);
    EXPECT_EQ(QDir(folder).entryList(QDir::Files), QStringList(u"Pellory.store"_s));
}

TEST_F(PelloryAppTest, aCorruptedStoreIsOpenedAgainAfterTheQuestionWhateverTheAnswer)
{
    EXPECT_EQ(start([](PelloryApp& app) { app.settings().firstTime = false; }), QString());
    const QByteArray sound = bytes();
    for (const bool isDelete : {false, true}) {
        write(damaged);
        alerts.answer = [&] {
            if (!isDelete)
                write(sound); // the person has put it right meanwhile
            return isDelete;
        };
        EXPECT_EQ(start([&](PelloryApp& app) { EXPECT_EQ(app.settings().firstTime, isDelete); }), QString());
        EXPECT_EQ(alerts.shown, QStringList(question));
    }
}

TEST_F(PelloryAppTest, aStoreThatCannotBeRemovedEndsTheStart)
{
    write(damaged);
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner);
    alerts.answer = [] { return true; };
    const QString reason = u"Could not remove app data store: "_s + reasonOf([&] { removeStoreFile(store); });
    EXPECT_EQ(start(), reason);
    EXPECT_EQ(alerts.shown, QStringList({question, u"Fatal Error: "_s + reason}));
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EXPECT_EQ(bytes(), damaged);
}
