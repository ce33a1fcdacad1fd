// SPDX-License-Identifier: GPL-3.0-or-later
#include "AutostartEntry.h"
#include "LaunchAtLogin.h"
#include "PrivateBuses.h"

#include <QFileInfo>
#include <QSignalSpy>

TEST(LaunchAtLoginTest, isWhatTheDesktopMakesOfTheFile)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"new/autostart/io.github.pellory.Pellory.desktop"_s));
    AutostartEntry entry(folder.filePath(u"new"_s), uR"(/opt/a b/%f "$HOME" `\)"_s);
    AutostartEntry nowhere(file.fileName(), {});
    LaunchAtLogin login(entry), broken(nowhere);
    for (const bool isWanted : {false, true, true}) {
        QSignalSpy announced(&login, &LaunchAtLogin::willChange);
        login.setEnabled(isWanted);
        EXPECT_TRUE(login.isEnabled() == isWanted && announced.size() == 1);
    }
    EXPECT_FALSE(QFile::permissions(QFileInfo(file).path()) & QFile::Permissions(0x77));
    ASSERT_TRUE(file.open(QFile::ReadWrite));
    const QByteArray all = file.readAll();
    EXPECT_TRUE(all.startsWith("[Desktop Entry]\nType=Application\nName=Pellory\n"));
    EXPECT_TRUE(all.contains(R"(Exec="/opt/a b/%%f \\"\\$HOME\\" \\`\\\\" --at-login)")) << all.constData();
    const std::pair<QByteArray, bool> rows[]{
        {all + "Hidden = true \r\n", false},
        {all + "X-GNOME-Autostart-enabled=false", false},
        {all + "Hidden=false\nX-GNOME-Autostart-enabled=true\n", true},
        {all + "Hidden=True\n#Hidden=true\nHidden[de]=true\nhidden=true\n", true},
        {"[Other]\nHidden=true\n" + all + "[Desktop Action Open]\nX-GNOME-Autostart-enabled=false\n", true},
        {"[Other]\nType=Application\n", false}};
    for (const auto& [text, isEnabled] : rows) {
        EXPECT_TRUE(file.resize(0) && file.seek(0) && file.write(text) > 0 && file.flush());
        EXPECT_EQ(login.isEnabled(), isEnabled) << text.constData();
    }
    testing::internal::CaptureStderr();
    for (const bool isWanted : {true, false})
        broken.setEnabled(isWanted);
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "pellory.login: Failed to enable launch at login: File exists\n"
              "pellory.login: Failed to disable launch at login: Not a directory\n");
}
